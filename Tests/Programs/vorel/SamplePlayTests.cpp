// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Programs/vorel-service/RunningService.h"
#include "Programs/vorel/VorelProgramTest.h"

#include <QColor>
#include <QImage>
#include <QRectF>
#include <QRegularExpression>

namespace
{
class SamplePlay : public FVorelProgramTest
{
protected:
	// The first widget with this in its line of a saved tree.
	QRectF FindInTree(const char* TreeFile, const char* Pattern)
	{
		static const QRegularExpression Geometry(QStringLiteral(R"(([-.\d]+),([-.\d]+) ([.\d]+)x([.\d]+))"));
		for (const QByteArray& Line : Read(TreeFile).split('\n'))
		{
			if (Line.contains(Pattern))
			{
				const QRegularExpressionMatch Match = Geometry.match(QString::fromUtf8(Line));
				return QRectF(
					Match.captured(1).toDouble(), Match.captured(2).toDouble(), Match.captured(3).toDouble(), Match.captured(4).toDouble());
			}
		}
		ADD_FAILURE() << TreeFile << " has no " << Pattern;
		return QRectF();
	}
};

// What a saved tree shows of the conversations: the mode, and whether it is locked; the user's first message, which a new chat does not
// have; and the titles in the open list, without the times before them.
std::string ReadConversations(const QByteArray& Tree)
{
	static const QRegularExpression Time(QStringLiteral(R"(^(\d\d:\d\d|\d+ \w+) )"));
	QString Mode, Lock, Question;
	QStringList Rows;
	QByteArray Around;
	for (const QByteArray& Line : Tree.split('\n'))
	{
		const QByteArray Type = Line.trimmed().split(' ').first();
		const QString Text = QString::fromUtf8(Line).section(u'"', 1, 1);
		if (Type == "SBottomBar" || Type == "SComboList" || Type == "SChatItem" || Type == "SInputArea")
		{
			Around = Type;
		}
		else if (Type == "SComboBox" && Around == "SBottomBar" && Line.endsWith(" disabled"))
		{
			Lock = QStringLiteral(", locked");
		}
		else if (Type == "STextBlock" && Around == "SBottomBar" && Mode.isEmpty())
		{
			Mode = Text;
		}
		else if (Type == "STextBlock" && Around == "SComboList")
		{
			Rows.append(QString(Text).remove(Time));
		}
		else if (Type == "SMultiLineEditableText" && Around == "SChatItem" && Question.isEmpty())
		{
			Question = Text;
		}
	}
	return QStringLiteral("%1%2: %3 | %4").arg(Mode, Lock, Question, Rows.join(QStringLiteral(", "))).toStdString();
}

// The N-th block of code of an article, from 0.
std::string ReadGuideBlock(const char* Article, int Number)
{
	QFile File(QStringLiteral(VOREL_PROJECT_FOLDER "/Source/VorelService/Content/Guide/%1.md").arg(QLatin1String(Article)));
	EXPECT_TRUE(File.open(QIODevice::ReadOnly)) << Article;
	const QString Block = QString::fromUtf8(File.readAll()).section(QStringLiteral("\n```"), 2 * Number + 1, 2 * Number + 1);
	return Block.section(u'\n', 1).toStdString();
}

int CountPixels(const QImage& Image, const QRect& Area, const QColor& Color)
{
	int Count = 0;
	for (int Y = Area.top(); Y <= Area.bottom(); ++Y)
	{
		for (int X = Area.left(); X <= Area.right(); ++X)
		{
			Count += Image.pixelColor(X, Y) == Color ? 1 : 0;
		}
	}
	return Count;
}
} // namespace

TEST_F(SamplePlay, CopiesEachBlockOfCodeAsTheGuideHasIt)
{
	PlaySample("code-and-copy.play");
	const std::pair<std::string, std::vector<int>> Rows[] = {
		{"AutomationTests", {0, 3}}, {"SlateWidgets", {0, 1, 2}}, {"Timers", {0, 1, 2, 3}}};
	for (const auto& [Article, Blocks] : Rows)
	{
		for (std::size_t Index = 0; Index < Blocks.size(); ++Index)
		{
			const std::string Copied = "code-and-copy/" + Article + '-' + std::to_string(Index + 1) + ".txt";
			EXPECT_EQ(Read(Copied.c_str()).toStdString(), ReadGuideBlock(Article.c_str(), Blocks[Index])) << Copied;
		}
	}

	const QImage Picture(GetPath("code-and-copy/1-colors.png"));
	const QRectF Box = FindInTree("code-and-copy/1-colors.txt", "SSCodeWidget ");
	// Without the pixels that it covers in part.
	const QRect Visible = Box.intersected(FindInTree("code-and-copy/1-colors.txt", "SScrollBox ")).toRect().adjusted(0, 1, 0, -1);
	for (const char* const Color : {"#FFDAAA", "#BCF3AA", "#BCDAF3"})
	{
		EXPECT_GT(CountPixels(Picture, Visible, QColor(QLatin1String(Color))), 20) << Color;
	}
	constexpr int Padding = 10;
	const QRect RightEdge(Visible.right() + 1 - Padding, Visible.top(), Padding, Visible.height());
	EXPECT_EQ(CountPixels(Picture, RightEdge, QColor(0x16, 0x18, 0x1C)), Padding * Visible.height());
	EXPECT_EQ(FindInTree("code-and-copy/1-colors.txt", "name=\"Copy\"").topRight(), Box.topRight() + QPointF(-8, 8));
}

TEST_F(SamplePlay, KeepsConversationsOverThreeRuns)
{
	for (const char* const Name : {"history-1-create.play", "history-2-return.play", "history-3-new-chat.play"})
	{
		PlaySample(Name);
	}

	const std::pair<std::string, const char*> Steps[] = {
		{"1-empty", "Agent:  | "},
		{"1-agent", "Agent, locked: How do I set a timer? | "},
		{"1-new", "Agent:  | "},
		{"1-modes", "Agent:  | Agent, Ask, Review"},
		{"1-ask", "Ask: Explain interfaces | "},
		{"1-rows", "Agent, locked: Replicate a variable | Replicate a variable, Explain interfaces, How do I set a time…"},
		{"2-rows", "Agent:  | Replicate a variable, Explain interfaces, How do I set a time…"},
		{"2-ask", "Ask: Explain interfaces | "},
		{"2-agent", "Agent, locked: How do I set a timer? | "},
		{"2-deleted", "Agent, locked: Replicate a variable | Replicate a variable, How do I set a time…"},
		{"3-rows", "Agent:  | Replicate a variable, How do I set a time…"},
		{"3-opened", "Agent, locked: Replicate a variable | "},
		{"3-new", "Agent:  | "},
		{"3-still-two", "Agent:  | Replicate a variable, How do I set a time…"},
		{"3-three", "Agent, locked: Explain smart pointers | Explain smart point…, Replicate a variable, How do I set a time…"},
	};
	for (const auto& [Name, Expected] : Steps)
	{
		EXPECT_EQ(ReadConversations(Read(("history/" + Name + ".txt").c_str())), Expected) << Name;
	}

	// The third row was the one chosen before the second was deleted, and then the first is.
	const QByteArray Tree = Read("history/2-deleted.txt");
	const qsizetype FirstRow = Tree.indexOf("SComboRow ");
	EXPECT_TRUE(Tree.mid(FirstRow, Tree.indexOf('\n', FirstRow) - FirstRow).endsWith("tag=selected"));
}

TEST_F(SamplePlay, SignsInAndOutAndInAgain)
{
	PlaySample("login.play");
	EXPECT_EQ(FindInTree("login/1-panel.txt", "\"Log in\"").center().x(), 500.0);
	EXPECT_EQ(FindInTree("login/2-dots.txt", "SLoadingAnimation ").center(), FindInTree("login/1-panel.txt", "\"Log in\"").center());
	EXPECT_NE(QImage(GetPath("login/1-panel.png")), QImage(GetPath("login/2-dots.png")));
	EXPECT_TRUE(FindInTree("login/3-greeting.txt", "SLoginPanel ").isEmpty());
	EXPECT_TRUE(FindInTree("login/4-signed-out.txt", "SChatPanel ").isEmpty());
	EXPECT_TRUE(Read("login/5-again.txt").contains("\"Licenced to: Ada Lovelace\""));

	const QList<QByteArray> Addresses = Read("login/addresses.txt").split('\n');
	ASSERT_EQ(Addresses.size(), 5);
	const char* const Paths[] = {"/tos", "/privacy", "/login?response_type=code&client_id=vorel-editor&", "/login?"};
	for (int Index = 0; Index < 4; ++Index)
	{
		EXPECT_TRUE(Addresses[Index].startsWith("http://127.0.0.1:") && Addresses[Index].contains(Paths[Index])) << Paths[Index];
	}
}

TEST_F(SamplePlay, SpendsTheLastCreditAndTopsUp)
{
	PlaySample("no-credits.play", {QStringLiteral("--daily-credits=1")});
	const QRectF Box = FindInTree("no-credits/2-topped-up.txt", "hint=\"Type your message here...\"");
	EXPECT_EQ(FindInTree("no-credits/1-none-left.txt", "\"You have no credits left for this Agent mode.\"").topLeft(), Box.topLeft());
	EXPECT_GT(FindInTree("no-credits/1-none-left.txt", "\"Get more credits\"").width(), 0.0);
	EXPECT_EQ(FindInTree("no-credits/2-topped-up.txt", "\"Get more credits\"").width(), 0.0);
	EXPECT_TRUE(Read("no-credits/addresses.txt").endsWith("/billing\n"));
}

TEST_F(SamplePlay, IsToldOfANewerVersionByAServiceAndOfItsAbsence)
{
	const char* const Add = "echo the password of ada | $P --data-dir data accounts add 'Ada Lovelace'";
	ASSERT_EQ(FProgramRun::RunShell("vorel-service", Add, ToQString(Folder.GetPath())).ExitStatus, 0);
	Write("data/settings.json", "{\"allowTokenFile\": true}");
	FRunningService Service(Folder, {QStringLiteral("--plugin-version=9.0.0")});
	const QStringList Options = {QStringLiteral("--service=") + QString::fromStdString(Service.Address)};
	PlaySample("new-version.play", Options);
	EXPECT_TRUE(Read("new-version/addresses.txt").endsWith("\nhttps://vorel.example/plugin\n"));
	EXPECT_GT(FindInTree("new-version/notice.txt", "\"Download\"").width(), 0.0);

	Service.Stop(SIGTERM);
	PlaySample("no-user-data.play", Options);
	const QByteArray Tree = Read("no-user-data/failed.txt");
	EXPECT_TRUE(Tree.contains("\"Licenced to: \"") && Tree.contains("\"Credits: 0\""));
}
