// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Assistant/AnswerReader.h"

#include "Support/Printers.h"
#include <gtest/gtest.h>

namespace
{
struct FRow
{
	std::string Bytes;
	// The text, then how it ended: " complete", " length", " filter", or " failed: " and the reason.
	const TCHAR* Expected;
};

FString Describe(FAnswerReader& Reader)
{
	const FAnswerEnd End = *Reader.GetEnd();
	const FString Text = Reader.TakeText();
	switch (End.Kind)
	{
	case EAnswerEnd::Complete:
		return Text + TEXT(" complete");
	case EAnswerEnd::LengthLimit:
		return Text + TEXT(" length");
	case EAnswerEnd::ContentFilter:
		return Text + TEXT(" filter");
	default:
		return Text + TEXT(" failed: ") + End.Failure.ToString();
	}
}

FString ReadInPieces(const std::string& Bytes, std::size_t PieceSize)
{
	FAnswerReader Reader;
	for (std::size_t Start = 0; Start < Bytes.size(); Start += PieceSize)
	{
		Reader.Feed(std::string_view(Bytes).substr(Start, PieceSize));
	}
	Reader.Close();
	return Describe(Reader);
}

std::string Delta(const std::string& Json)
{
	return "data: {\"choices\":[{\"index\":0,\"delta\":" + Json + "}]}\n\n";
}

std::string Finish(const std::string& Reason)
{
	return "data: {\"choices\":[{\"index\":0,\"delta\":{},\"finish_reason\":" + Reason + "}]}\n\n";
}

const std::string Hi = Delta("{\"content\":\"Hi\"}");
const std::string Done = "data: [DONE]\n\n";
constexpr const TCHAR* BrokenOff = TEXT("Hi failed: The connection to the assistant broke off before the answer was complete.");
constexpr const TCHAR* NotAnAnswer = TEXT("What the server sent is not an assistant's answer. Check the assistant's address.");

void Expect(const std::vector<FRow>& Rows)
{
	for (const FRow& Row : Rows)
	{
		for (const std::size_t PieceSize : {std::size_t(1), std::size_t(2), std::size_t(3), Row.Bytes.size() + 1})
		{
			EXPECT_EQ(ReadInPieces(Row.Bytes, PieceSize), Row.Expected) << "in " << PieceSize << ": " << Row.Bytes.substr(0, 300);
		}
	}
}
} // namespace

TEST(FAnswerReaderTest, TakesWhatCompatibleServersSend)
{
	Expect({
		{Delta("{\"role\":\"assistant\",\"content\":\"\"}") + Hi + Finish("\"stop\"") + Done, TEXT("Hi complete")},
		{Hi + Finish("\"stop\""), TEXT("Hi complete")},
		{Hi + Done, TEXT("Hi complete")},
		{Hi + "data: [DONE]", TEXT("Hi complete")},
		{Hi + Done + "data: rubbish\n\n", TEXT("Hi complete")},
		{Hi + Finish("null") + Finish("\"\"") + Delta("{\"content\":\"!\"}") + Done, TEXT("Hi! complete")},
		{"data: {\"choices\":[{\"delta\":{\"content\":\"Hi\"},\"finish_reason\":\"eos\"}]}\n\n", TEXT("Hi complete")},
		{Hi + "data: {\"choices\":[{\"delta\":{},\"finish_reason\":\"stop\"}]}", TEXT("Hi complete")},
		{Hi + Finish("\"length\""), TEXT("Hi length")},
		{Hi + Finish("\"content_filter\""), TEXT("Hi filter")},
		{Hi + "data: {\"choices\":[],\"usage\":{\"total_tokens\":3}}\n\n" + "data: {\"usage\":{}}\n\n" + "data: {\"choices\":null}\n\n" +
				Done,
			TEXT("Hi complete")},
		{Hi + ": ping\n\n" + "data: : keepalive\n\n" + "data:\n\n" + "event: ping\ndata: 1\n\n" + "event: ping\n\n" + Done,
			TEXT("Hi complete")},
		{Delta("{\"content\":null}") + Delta("{}") + "data: {\"choices\":[{\"index\":0}]}\n\n" +
				Delta("{\"content\":[{\"type\":\"text\",\"text\":\"H\"},\"i\"]}") + Done,
			TEXT("Hi complete")},
		{Delta("{\"reasoning_content\":\"hm\",\"reasoning\":\"hm\"}") + Hi + Done, TEXT("Hi complete")},
		{Delta("{\"refusal\":\"No.\"}") + Done, TEXT("No. complete")},
		{"data: {\"choices\":[{\"index\":1,\"delta\":{\"content\":\"other\"},\"finish_reason\":\"stop\"}]}\n\n" + Hi + Done,
			TEXT("Hi complete")},
		{"{\"choices\":[{\"index\":0,\"message\":{\"role\":\"assistant\",\"content\":\"Hi\"},\"finish_reason\":\"stop\"}]}\n",
			TEXT("Hi complete")},
		{"\r\n {\n \"choices\": [\n {\"message\": {\"content\": \"Hi\"},\n \"finish_reason\": \"length\"}]\n}\n\n", TEXT("Hi length")},
		{Delta("{\"content\":\"\xE4\xBB\x8A \xF0\x9F\x98\x80 \\ud83d\\ude00 \xFF\"}") + Done, TEXT("今 😀 😀 \xFFFD complete")},
	});
}

TEST(FAnswerReaderTest, FollowsTheGrammarOfEvents)
{
	const std::string Head = R"({"choices":[{"delta":)";
	const std::string Tail = R"({"content":"Hi"}}]})";
	const std::string Json = Head + Tail;
	Expect({
		{"\xEF\xBB\xBF: hi\r\ndata: " + Head + "\r\ndata:" + Tail + "\r\n\r\ndata: [DONE]\r\n\r\n", TEXT("Hi complete")},
		{"data: " + Head + "\rdata: " + Tail + "\r\rdata: " + Json + "\r\r\r\rdata: [DONE]\r\r", TEXT("HiHi complete")},
		{"id: 7\nretry: 10\nDATA: no\ndata: " + Json + "\n\n\xEF\xBB\xBF" + Hi + Done, TEXT("Hi complete")},
		{"event: error\n\n" + Hi + "event: error\ndata: {\"error\":\"No.\"}\n\n",
			TEXT("Hi failed: The assistant reported an error. It says: No.")},
	});
}

TEST(FAnswerReaderTest, TakesNothingForCompleteWithoutProof)
{
	Expect({
		{Hi, BrokenOff},
		{Hi + "data: {\"choices\":[{\"delta\":{},\"finish_rea", BrokenOff},
		{Hi + ": ping\n\n", BrokenOff},
		{"{\"choices\":[{\"message\":{\"content\":\"Hi\"}}]}", BrokenOff},
		{"", TEXT(" failed: The connection to the assistant broke off before the answer was complete.")},
		{": ping\n\n", TEXT(" failed: The connection to the assistant broke off before the answer was complete.")},
	});
}

TEST(FAnswerReaderTest, TellsWhatWentWrong)
{
	const FString Rubbish = FString(TEXT(" failed: ")) + NotAnAnswer;
	const FString LaterRubbish = FString(TEXT("Hi failed: ")) + NotAnAnswer;
	Expect({
		{Hi + "data: {\"error\":{\"message\":\"Overloaded\",\"code\":529}}\n\n" + Done,
			TEXT("Hi failed: The assistant reported an error. It says: Overloaded")},
		{"data: {\"error\":\"Out of memory\"}\n\n", TEXT(" failed: The assistant reported an error. It says: Out of memory")},
		{"event: error\ndata: {\"message\":\"Busy\"}\n\n", TEXT(" failed: The assistant reported an error. It says: Busy")},
		{"event: error\ndata: plain words\n\n", TEXT(" failed: The assistant reported an error. It says: plain words")},
		{"{\"error\":{\"message\":\"No such\\nmodel\\u001b[31m\"}}",
			TEXT(" failed: The assistant reported an error. It says: No such model [31m")},
		{Hi + Finish("\"error\""), TEXT("Hi failed: The assistant reported an error.")},
		{Hi + "data: {not json}\n\n" + Done, *LaterRubbish},
		{"data: 7\n\n", *Rubbish},
		{"{\"detail\":\"hello\"}", *Rubbish},
		{"once upon a time\nthere was\n\na server", *Rubbish},
		{"<!DOCTYPE html><html><head><title>Log in</title></head>\n\n<body></body></html>",
			TEXT(" failed: A web page came in place of the assistant's answer. Check the assistant's address. It says: Log in")},
		{Finish("\"stop\""), TEXT(" failed: The assistant ended its answer without a word. Try again.")},
		{Done, TEXT(" failed: The assistant ended its answer without a word. Try again.")},
		{Finish("\"length\""),
			TEXT(" failed: The assistant reached its length limit before the first word of its answer. A new chat can help.")},
		{Finish("\"content_filter\""), TEXT(" failed: The assistant's provider withheld the answer by its content rules.")},
	});
}

TEST(FAnswerReaderTest, StopsServersThatNeverEnd)
{
	const std::string Line(1024 * 1024, 'x');
	for (const std::string& Endless : {Line, Line + "\n", Delta("{\"content\":\"" + Line + "\"}")})
	{
		FAnswerReader Reader;
		int32 Megabytes = 0;
		for (; Megabytes < 40 && !Reader.GetEnd(); ++Megabytes)
		{
			Reader.Feed(Endless);
		}
		EXPECT_LT(Megabytes, 20);
		EXPECT_EQ(Reader.GetEnd()->Kind, EAnswerEnd::Failed);
	}
}
