// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Assistant/ServerSentEventParser.h"

namespace
{
FString Decode(const std::string& Bytes)
{
	return FString(FStringView(FUTF8ToTCHAR(Bytes.data(), static_cast<int32>(Bytes.size()))));
}
} // namespace

bool FServerSentEventParser::Feed(std::string_view Bytes, TArray<FServerSentEvent>& OutEvents)
{
	for (std::size_t Start = 0; Start < Bytes.size();)
	{
		if (bAfterCarriageReturn && Bytes[Start] == '\n')
		{
			bAfterCarriageReturn = false;
			++Start;
			continue;
		}
		const std::size_t End = std::min(Bytes.find_first_of("\r\n", Start), Bytes.size());
		Line.append(Bytes, Start, End - Start);
		if (Line.size() + Data.size() > MaxEventBytes)
		{
			return false;
		}
		bAfterCarriageReturn = End < Bytes.size() && Bytes[End] == '\r';
		if (End < Bytes.size())
		{
			EndLine(OutEvents);
		}
		Start = End + 1;
	}
	return true;
}

void FServerSentEventParser::EndLine(TArray<FServerSentEvent>& OutEvents)
{
	constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
	std::string_view Text = Line;
	if (bFirstLine && Text.starts_with(ByteOrderMark))
	{
		Text.remove_prefix(ByteOrderMark.size());
	}
	bFirstLine = false;
	if (!Text.empty())
	{
		TakeField(Text);
	}
	else if (!Data.empty())
	{
		OutEvents.Add(TakeEvent());
	}
	else
	{
		Type.clear();
	}
	Line.clear();
}

void FServerSentEventParser::TakeField(std::string_view Field)
{
	// A comment has an empty name.
	const std::size_t Colon = std::min(Field.find(':'), Field.size());
	const std::string_view Name = Field.substr(0, Colon);
	std::string_view Value = Field.substr(std::min(Colon + 1, Field.size()));
	if (Value.starts_with(' '))
	{
		Value.remove_prefix(1);
	}
	if (Name == "data")
	{
		Data.append(Value).push_back('\n');
	}
	else if (Name == "event")
	{
		Type = Value;
	}
}

FServerSentEvent FServerSentEventParser::TakeEvent()
{
	Data.pop_back();
	FServerSentEvent Event{Decode(Type), Decode(Data)};
	Data.clear();
	Type.clear();
	return Event;
}

TOptional<FServerSentEvent> FServerSentEventParser::TakeUnfinished()
{
	TArray<FServerSentEvent> Events;
	EndLine(Events);
	EndLine(Events);
	return Events.IsEmpty() ? TOptional<FServerSentEvent>() : TOptional<FServerSentEvent>(Events[0]);
}
