// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QDateTime>

#include "ConversationFile.h"

#include "Http/JsonText.h"
#include "Http/QtText.h"
#include "Chat/AnswerNote.h"
#include "Chat/ChatModes.h"
#include "Chat/ConversationTitle.h"
#include <algorithm>

namespace
{
// Keeps the fields in the order in which they are written.
using FOrderedJson = nlohmann::ordered_json;

struct FRoleName
{
	EChatRole Role;
	const char* InJson;
	const char* InHeading;
};

constexpr FRoleName RoleNames[] = {
	{EChatRole::User, "user", "User"}, {EChatRole::Assistant, "assistant", "Assistant"}, {EChatRole::System, "system", "System"}};

const FRoleName& GetRoleName(EChatRole Role)
{
	return RoleNames[static_cast<int32>(Role)];
}

std::string FormatTime(int64 Time)
{
	return QDateTime::fromMSecsSinceEpoch(Time, Qt::UTC).toString(Qt::ISODateWithMs).toStdString();
}

// What is wrong with a field, thrown to the one place that tells it.
struct FWrongField
{
	FString Clause;
};

[[noreturn]] void Refuse(const std::string& Field, const TCHAR* Expectation)
{
	throw FWrongField{FString::Printf(TEXT("\"%s\" must be %s"), *FromUtf8(Field), Expectation)};
}

FString ReadText(const FJson& Object, const char* Name, const std::string& Path)
{
	const FJson& Value = GetMember(Object, Name);
	if (!Value.is_string())
	{
		Refuse(Path + Name, TEXT("a text"));
	}
	return ToString(Value);
}

FMessageRecord ReadMessage(const FJson& Object, const std::string& Path)
{
	FMessageRecord Message;
	const FJson& Role = GetMember(Object, "role");
	const FRoleName* const Found =
		std::find_if(std::begin(RoleNames), std::end(RoleNames), [&Role](const FRoleName& Name) { return Role == Name.InJson; });
	if (Found == std::end(RoleNames))
	{
		Refuse(Path + "role", TEXT("\"user\", \"assistant\" or \"system\""));
	}
	Message.Role = Found->Role;
	Message.Text = ReadText(Object, "text", Path);
	return Message;
}

FString ReadId(const FJson& Root)
{
	const FString Id = ReadText(Root, "id", "");
	// It stands in a line with other things.
	if (Id.IsEmpty() || !Id.Equals(MakeConversationTitle(Id)))
	{
		Refuse("id", TEXT("a text of one line"));
	}
	return Id;
}

FString ReadMode(const FJson& Root)
{
	const FChatMode* const Mode = FindChatMode(ReadText(Root, "mode", ""));
	if (!Mode)
	{
		FString Names;
		for (const FChatMode& Known : GetChatModes())
		{
			Names += FString(Names.IsEmpty() ? TEXT("") : TEXT(", ")) + Known.Name;
		}
		Refuse("mode", *(TEXT("one of ") + Names));
	}
	return Mode->Name;
}

int64 ReadTime(const FJson& Root)
{
	const QDateTime Time = QDateTime::fromString(ToQString(ReadText(Root, "created", "")), Qt::ISODateWithMs);
	if (!Time.isValid() || Time.timeSpec() == Qt::LocalTime || Time.toMSecsSinceEpoch() <= 0)
	{
		Refuse("created", TEXT("a time after 1970 such as 2026-01-31T18:30:00Z"));
	}
	return Time.toMSecsSinceEpoch();
}

FWholeConversation ReadConversation(const FJson& Root)
{
	if (!Root.is_object())
	{
		throw FWrongField{TEXT("it must hold one JSON object")};
	}
	FWholeConversation Whole;
	Whole.Conversation.Id = ReadId(Root);
	Whole.Conversation.Title = MakeConversationTitle(ReadText(Root, "title", ""));
	Whole.Conversation.ModeName = ReadMode(Root);
	Whole.Conversation.Created = ReadTime(Root);
	Whole.Conversation.LastUsed = Whole.Conversation.Created;
	const FJson& Messages = GetMember(Root, "messages");
	if (!Messages.is_array() || Messages.empty())
	{
		Refuse("messages", TEXT("a list of at least one message"));
	}
	for (const FJson& Message : Messages)
	{
		Whole.Messages.Add(ReadMessage(Message, "messages[" + std::to_string(Whole.Messages.Num()) + "]."));
	}
	return Whole;
}
} // namespace

std::string ConversationFile::ToMarkdown(const FWholeConversation& Whole)
{
	const FConversationRecord& Conversation = Whole.Conversation;
	std::string Markdown = "# " + ToUtf8(GetShownTitle(Conversation.Title)) + "\n\n" + ToUtf8(Conversation.ModeName) + ", " +
						   FormatTime(Conversation.Created) + "\n";
	for (const FMessageRecord& Message : Whole.Messages)
	{
		const FString Text = Message.Text + MakeAnswerNote(Message.Text, Message.End.Get(EAnswerEnd::Failed));
		Markdown += std::string("\n## ") + GetRoleName(Message.Role).InHeading + "\n\n" + ToUtf8(Text) + "\n";
	}
	return Markdown;
}

std::string ConversationFile::ToJson(const FWholeConversation& Whole)
{
	const FConversationRecord& Conversation = Whole.Conversation;
	FOrderedJson Messages = FOrderedJson::array();
	for (const FMessageRecord& Message : Whole.Messages)
	{
		Messages.push_back({{"role", GetRoleName(Message.Role).InJson}, {"text", ToUtf8(Message.Text)}});
	}
	const FOrderedJson Root = {{"id", ToUtf8(Conversation.Id)}, {"title", ToUtf8(Conversation.Title)},
		{"mode", ToUtf8(Conversation.ModeName)}, {"created", FormatTime(Conversation.Created)}, {"messages", Messages}};
	return Root.dump(2) + "\n";
}

TOptional<FWholeConversation> ConversationFile::FromJson(std::string_view Bytes, FString& OutError)
{
	try
	{
		return ReadConversation(FJson::parse(Bytes));
	}
	catch (const FWrongField& Wrong)
	{
		OutError = Wrong.Clause;
	}
	catch (const FJson::parse_error& Error)
	{
		// The byte it stumbled over, counted from 1, may itself be the end of the line in question.
		const std::string_view Before = Bytes.substr(0, std::min(Error.byte, Bytes.size()) - 1);
		const auto Line = static_cast<int32>(1 + std::count(Before.begin(), Before.end(), '\n'));
		OutError = FString::Printf(TEXT("line %d is not JSON"), Line);
	}
	catch (const FJson::out_of_range&)
	{
		OutError = TEXT("it holds a number that is too large");
	}
	return NullOpt;
}

std::string ConversationFile::ToListLine(const FConversationRecord& Conversation)
{
	return ToUtf8(Conversation.Id) + "\t" + FormatTime(Conversation.LastUsed) + "\t" + ToUtf8(Conversation.ModeName) + "\t" +
		   ToUtf8(GetShownTitle(Conversation.Title));
}
