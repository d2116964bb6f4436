// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Programs/vorel/VorelProgramTest.h"

#include <QColor>
#include <QImage>
#include <QRect>
#include <QRegularExpression>

namespace
{
class SamplePlay : public FVorelProgramTest
{
protected:
	// The first widget with this in its line of a saved tree.
	QRect FindInTree(const char* TreeFile, const char* Pattern)
	{
		static const QRegularExpression Geometry(QStringLiteral(R"((-?\d+),(-?\d+) (\d+)x(\d+))"));
		for (const QByteArray& Line : Read(TreeFile).split('\n'))
		{
			if (Line.contains(Pattern))
			{
				const QRegularExpressionMatch Match = Geometry.match(QString::fromUtf8(Line));
				return QRect(Match.captured(1).toInt(), Match.captured(2).toInt(), Match.captured(3).toInt(), Match.captured(4).toInt());
			}
		}
		ADD_FAILURE() << TreeFile << " has no " << Pattern;
		return QRect();
	}
};

// The N-th block of code of an article, from 0.
QByteArray ReadGuideBlock(const char* Article, int Number)
{
	QFile File(QStringLiteral(VOREL_PROJECT_FOLDER "/Source/VorelService/Content/Guide/%1.md").arg(QLatin1String(Article)));
	EXPECT_TRUE(File.open(QIODevice::ReadOnly)) << Article;
	const QList<QByteArray> Lines = File.readAll().split('\n');
	QList<QByteArray> Block;
	int Fences = 0;
	for (const QByteArray& Line : Lines)
	{
		if (Line.startsWith("```"))
		{
			++Fences;
		}
		else if (Fences == 2 * Number + 1)
		{
			Block.append(Line);
		}
	}
	return Block.join('\n');
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
	const FProgramOutcome Outcome = PlaySample("code-and-copy.play");
	ASSERT_EQ(Outcome.ExitStatus, 0) << Outcome.Errors;
	const std::tuple<const char*, const char*, int> Rows[] = {
		{"code-and-copy/AutomationTests-1.txt", "AutomationTests", 0},
		{"code-and-copy/AutomationTests-2.txt", "AutomationTests", 3},
		{"code-and-copy/SlateWidgets-1.txt", "SlateWidgets", 0},
		{"code-and-copy/SlateWidgets-2.txt", "SlateWidgets", 1},
		{"code-and-copy/SlateWidgets-3.txt", "SlateWidgets", 2},
		{"code-and-copy/Timers-1.txt", "Timers", 0},
		{"code-and-copy/Timers-2.txt", "Timers", 1},
		{"code-and-copy/Timers-3.txt", "Timers", 2},
		{"code-and-copy/Timers-4.txt", "Timers", 3},
	};
	for (const auto& [Copied, Article, Number] : Rows)
	{
		EXPECT_EQ(Read(Copied).toStdString(), ReadGuideBlock(Article, Number).toStdString()) << Copied;
	}

	const QImage Picture(GetPath("code-and-copy/1-colors.png"));
	const QRect Box = FindInTree("code-and-copy/1-colors.txt", "SSCodeWidget ");
	const QRect Visible = Box.intersected(Picture.rect());
	for (const char* const Color : {"#FFDAAA", "#BCF3AA", "#BCDAF3"})
	{
		EXPECT_GT(CountPixels(Picture, Visible, QColor(QLatin1String(Color))), 20) << Color;
	}
	constexpr int Padding = 10;
	const QRect RightEdge(Visible.right() + 1 - Padding, Visible.top(), Padding, Visible.height());
	EXPECT_EQ(CountPixels(Picture, RightEdge, QColor(0x16, 0x18, 0x1C)), Padding * Visible.height());
	EXPECT_EQ(FindInTree("code-and-copy/1-colors.txt", "name=\"Copy\"").topRight(), Box.topRight() + QPoint(-8, 8));
}
