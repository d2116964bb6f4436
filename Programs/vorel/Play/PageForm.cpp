// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Play/PageForm.h"

#include "QtConversion.h"

#include <QRegularExpression>
#include <QTextDocumentFragment>

namespace
{
using FAttributes = QMap<QString, QString>;

const QRegularExpression::PatternOptions AnyCase =
	QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption;

QString ReadHtml(const QString& Html)
{
	return QTextDocumentFragment::fromHtml(Html).toPlainText().simplified();
}

FAttributes ReadAttributes(const QString& Tag)
{
	static const QRegularExpression Attribute(QStringLiteral(R"re(([\w-]+)\s*=\s*"([^"]*)")re"));
	FAttributes Attributes;
	for (const QRegularExpressionMatch& Match : Attribute.globalMatch(Tag))
	{
		Attributes[Match.captured(1).toLower()] = ReadHtml(Match.captured(2));
	}
	return Attributes;
}

void AddField(QByteArray& Body, const QString& Name, const QString& Value)
{
	Body += (Body.isEmpty() ? "" : "&") + QUrl::toPercentEncoding(Name) + '=' + QUrl::toPercentEncoding(Value);
}

// False where the form has no such button.
bool AddButton(QByteArray& Body, const QString& Form, const QString& Caption)
{
	static const QRegularExpression Pattern(QStringLiteral(R"re(<button\b((?:[^>"]|"[^"]*")*)>(.*?)</button>)re"), AnyCase);
	for (const QRegularExpressionMatch& Match : Pattern.globalMatch(Form))
	{
		if (Caption.isEmpty() || ReadHtml(Match.captured(2)) == Caption)
		{
			const FAttributes Button = ReadAttributes(Match.captured(1));
			if (Button.contains(QStringLiteral("name")))
			{
				AddField(Body, Button[QStringLiteral("name")], Button[QStringLiteral("value")]);
			}
			return true;
		}
	}
	return false;
}

void AddInputs(QByteArray& Body, const QString& Form, const QMap<QString, QString>& Entries)
{
	static const QRegularExpression Pattern(QStringLiteral(R"re(<input\b((?:[^>"]|"[^"]*")*)>)re"), AnyCase);
	for (const QRegularExpressionMatch& Match : Pattern.globalMatch(Form))
	{
		const FAttributes Input = ReadAttributes(Match.captured(1));
		const QString Name = Input[QStringLiteral("name")];
		AddField(Body, Name, Entries.value(Name, Input[QStringLiteral("value")]));
	}
}
} // namespace

TOptional<FPageForm> FPageForm::Find(const QUrl& Page, const QString& Html, const QMap<QString, QString>& Entries, const QString& Button)
{
	static const QRegularExpression Pattern(QStringLiteral(R"re(<form\b((?:[^>"]|"[^"]*")*)>(.*?)</form>)re"), AnyCase);
	for (const QRegularExpressionMatch& Match : Pattern.globalMatch(Html))
	{
		QByteArray Body;
		AddInputs(Body, Match.captured(2), Entries);
		if (AddButton(Body, Match.captured(2), Button))
		{
			return FPageForm{Page.resolved(QUrl(ReadAttributes(Match.captured(1))[QStringLiteral("action")])), Body};
		}
	}
	return NullOpt;
}

FString ReadPageMessage(const QString& Html)
{
	static const QRegularExpression Alert(QStringLiteral(R"re(<(\w+)[^>]*role="alert"[^>]*>(.*?)</\1>)re"), AnyCase);
	static const QRegularExpression Heading(QStringLiteral("<(h1)[^>]*>(.*?)</h1>"), AnyCase);
	const QRegularExpressionMatch Problem = Alert.match(Html);
	return ToFString(ReadHtml((Problem.hasMatch() ? Problem : Heading.match(Html)).captured(2)));
}
