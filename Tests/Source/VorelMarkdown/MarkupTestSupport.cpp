// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkupTestSupport.h"

#include "Framework/Text/RichTextMarkupProcessing.h"
#include "MarkdownParser.h"
#include "Styling/StyleSheets/VorelMarkdownStyle.h"
#include <algorithm>
#include <gtest/gtest.h>

namespace
{
constexpr std::string_view StylePrefix = "VorelMarkdown.";

class FStyleEnvironment : public testing::Environment
{
public:
	void SetUp() override { FVorelMarkdownStyle::Initialize(); }
	void TearDown() override { FVorelMarkdownStyle::Shutdown(); }
};

testing::Environment* const Environment = testing::AddGlobalTestEnvironment(new FStyleEnvironment);

FString FromUtf8(std::string_view Text)
{
	return FString(FUTF8ToTCHAR(Text.data(), static_cast<int32>(Text.size())));
}

FShownRun ReadRun(const FString& Text, const FTextRunParseResults& Run)
{
	FString Content = Text.Mid(Run.ContentRange.BeginIndex, Run.ContentRange.Len());
	if (Run.Name == TEXT("code"))
	{
		Content.ReplaceInline(TEXT("__NL__"), TEXT("\n"), ESearchCase::IgnoreCase);
	}
	std::string Name = TCHAR_TO_UTF8(Run.Name);
	Name.erase(0, Name.starts_with(StylePrefix) ? StylePrefix.size() : 0);
	return {Name, TCHAR_TO_UTF8(Content)};
}

bool HasMisplacedControl(const FShownRun& Run)
{
	const bool bLines = Run.Name.empty() || Run.Name == "code";
	return std::ranges::any_of(
		Run.Text, [bLines](unsigned char Byte) { return (Byte < 0x20 && Byte != '\t' && !(Byte == '\n' && bLines)) || Byte == 0x7F; });
}
} // namespace

std::string RenderMarkup(FStringView Markdown)
{
	UMarkdownParser* Parser = NewObject<UMarkdownParser>();
	Parser->SetContent(FString(Markdown));
	Parser->Parse();
	const std::string Markup = TCHAR_TO_UTF8(Parser->RenderToHTML());
	Parser->MarkAsGarbage();
	return Markup;
}

std::string RenderMarkup(std::string_view Markdown)
{
	return RenderMarkup(FStringView(FromUtf8(Markdown)));
}

std::string RenderShort(std::string_view Markdown)
{
	std::string Markup = RenderMarkup(Markdown);
	for (size_t Position = 0; (Position = Markup.find(StylePrefix, Position)) != std::string::npos;)
	{
		Markup.erase(Position, StylePrefix.size());
	}
	return Markup;
}

std::vector<FShownRun> ReadMarkup(std::string_view Markup)
{
	TArray<FTextLineParseResults> Lines;
	FString Text;
	FDefaultRichTextMarkupParser::Create()->Process(Lines, FromUtf8(Markup), Text);
	std::vector<FShownRun> Runs;
	for (const FTextLineParseResults& Line : Lines)
	{
		for (const FTextRunParseResults& Run : Line.Runs)
		{
			Runs.push_back(ReadRun(Text, Run));
		}
		Runs.push_back({"", "\n"});
	}
	Runs.pop_back();
	return Runs;
}

std::string FindMarkupError(const std::vector<FShownRun>& Runs)
{
	for (const FShownRun& Run : Runs)
	{
		const bool bOutside = Run.Name.empty();
		if (bOutside ? Run.Text != "\n" : Run.Name != "code" && !FVorelMarkdownStyle::Get().HasStyle(FromUtf8("VorelMarkdown." + Run.Name)))
		{
			return "the run <" + Run.Name + "> of: " + Run.Text;
		}
		if (HasMisplacedControl(Run))
		{
			return "a control character in: " + Run.Text;
		}
	}
	return {};
}

std::string GetShownText(std::string_view Markup)
{
	std::string Text;
	for (const FShownRun& Run : ReadMarkup(Markup))
	{
		Text += Run.Text;
	}
	return Text;
}

std::string Repeat(std::string_view Text, size_t Count)
{
	std::string Result;
	Result.reserve(Text.size() * Count);
	for (size_t Index = 0; Index < Count; ++Index)
	{
		Result += Text;
	}
	return Result;
}
