// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Assistant/AnswerReader.h"

#include "Assistant/FailureText.h"
#include "Http/JsonText.h"

namespace
{
bool HasWords(const FJson& Reason)
{
	return Reason.is_string() && !Reason.get_ref<const std::string&>().empty();
}

// A text, or a list of parts that have one.
FString ReadContent(const FJson& Content)
{
	if (!Content.is_array())
	{
		return ToString(Content);
	}
	FString Joined;
	for (const FJson& Part : Content)
	{
		Joined += Part.is_string() ? ToString(Part) : ToString(GetMember(Part, "text"));
	}
	return Joined;
}

// Some servers write {"error": "text"}, others {"error": {"message": "text"}} or {"message": "text"}.
FString FindErrorMessage(const FJson& Root)
{
	const FJson& Error = GetMember(Root, "error");
	if (Error.is_string())
	{
		return ToString(Error);
	}
	const FString Message = ToString(GetMember(Error, "message"));
	return Message.IsEmpty() ? ToString(GetMember(Root, "message")) : Message;
}

EAnswerEnd ReadFinishReason(const std::string& Reason)
{
	return Reason == "length"           ? EAnswerEnd::LengthLimit
		   : Reason == "content_filter" ? EAnswerEnd::ContentFilter
		   : Reason == "error"          ? EAnswerEnd::Failed
										: EAnswerEnd::Complete;
}

FString FindPageTitle(const std::string& Page)
{
	const std::size_t Start = Page.find("<title>");
	const std::size_t EndOfTitle = Start == std::string::npos ? Start : Page.find("</title>", Start);
	return EndOfTitle == std::string::npos ? FString() : FromUtf8(std::string_view(Page).substr(Start + 7, EndOfTitle - Start - 7));
}
} // namespace

void FAnswerReader::Feed(std::string_view Bytes)
{
	if (!bEventSeen)
	{
		Head.append(Bytes);
	}
	TArray<FServerSentEvent> Events;
	const bool bInLimits = Parser.Feed(Bytes, Events) && Head.size() <= FServerSentEventParser::MaxEventBytes;
	for (int32 Index = 0; Index < Events.Num() && !End; ++Index)
	{
		ReadEvent(Events[Index]);
	}
	if (!bInLimits)
	{
		Fail(FailureText::NotAnAnswer());
	}
}

void FAnswerReader::Close()
{
	if (!End)
	{
		ReadUnfinishedEvent();
	}
	if (!End && !bEventSeen)
	{
		ReadBodyWithoutEvents();
	}
	Fail(FailureText::BrokenOff());
}

FString FAnswerReader::TakeText()
{
	return ::MoveTemp(Text);
}

void FAnswerReader::ReadEvent(const FServerSentEvent& Event)
{
	// Keep-alives: an empty data line, or a comment that was wrapped into one.
	const FString Data = Event.Data.TrimStartAndEnd();
	if (Data.IsEmpty() || Data.StartsWith(TEXT(":")))
	{
		return;
	}
	bEventSeen = true;
	Head.clear();
	if (Data.StartsWith(TEXT("[DONE]"), ESearchCase::CaseSensitive))
	{
		Finish(EAnswerEnd::Complete);
	}
	else if (Event.Type == TEXT("error"))
	{
		const FString Message = ReadErrorMessage(FTCHARToUTF8(Data).Get());
		Fail(FailureText::ServerError(Message.IsEmpty() ? Data : Message));
	}
	else if (!ReadObject(FTCHARToUTF8(Data).Get()) && Event.Type.IsEmpty())
	{
		Fail(FailureText::NotAnAnswer());
	}
}

void FAnswerReader::ReadUnfinishedEvent()
{
	const TOptional<FServerSentEvent> Event = Parser.TakeUnfinished();
	if (!Event)
	{
		return;
	}
	// Without its blank line an event may be cut; what is whole in itself counts.
	const FString Data = Event->Data.TrimStartAndEnd();
	if (Data == TEXT("[DONE]") || IsJson(FTCHARToUTF8(Data).Get()))
	{
		ReadEvent(*Event);
	}
	else
	{
		bEventSeen = bEventSeen || !Data.IsEmpty();
	}
}

void FAnswerReader::ReadBodyWithoutEvents()
{
	const std::size_t First = Head.find_first_not_of(" \t\r\n");
	if (First == std::string::npos)
	{
		return;
	}
	if (Head[First] == '<')
	{
		Fail(FailureText::WebPage(FindPageTitle(Head)));
	}
	else if (Head[First] != ':' && (!ReadObject(Head) || AnswerLength == 0))
	{
		Fail(FailureText::NotAnAnswer());
	}
}

bool FAnswerReader::ReadObject(std::string_view Json)
{
	const FJson Root = ParseJson(Json);
	if (!Root.is_object())
	{
		return false;
	}
	const FJson& Error = GetMember(Root, "error");
	if (!Error.is_null())
	{
		Fail(FailureText::ServerError(FindErrorMessage(Root)));
		return true;
	}
	for (const FJson& Choice : GetMember(Root, "choices"))
	{
		// Of several answers we follow the first.
		const FJson& Index = GetMember(Choice, "index");
		if (Index.is_number() && Index != 0)
		{
			continue;
		}
		const FJson& Delta = GetMember(Choice, "delta");
		const FJson& Message = Delta.is_object() ? Delta : GetMember(Choice, "message");
		AddText(ReadContent(GetMember(Message, "content")) + ToString(GetMember(Message, "refusal")));
		const FJson& Reason = GetMember(Choice, "finish_reason");
		if (HasWords(Reason))
		{
			Finish(ReadFinishReason(Reason.get<std::string>()));
		}
	}
	return true;
}

void FAnswerReader::AddText(const FString& Added)
{
	Text += Added;
	AnswerLength += Added.Len();
	if (AnswerLength > MaxAnswerLength)
	{
		Fail(FailureText::TooLong());
	}
}

void FAnswerReader::Finish(EAnswerEnd Kind)
{
	if (Kind == EAnswerEnd::Failed)
	{
		Fail(FailureText::ServerError(FString()));
	}
	else if (AnswerLength == 0)
	{
		Fail(Kind == EAnswerEnd::LengthLimit     ? FailureText::EmptyByLengthLimit()
			 : Kind == EAnswerEnd::ContentFilter ? FailureText::Withheld()
												 : FailureText::Empty());
	}
	else if (!End)
	{
		End = FAnswerEnd{Kind, FText()};
	}
}

void FAnswerReader::Fail(const FText& Failure)
{
	if (!End)
	{
		End = FAnswerEnd{EAnswerEnd::Failed, Failure};
	}
}

FString ReadErrorMessage(std::string_view Body)
{
	return FindErrorMessage(ParseJson(Body));
}
