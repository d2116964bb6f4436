// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Syntax/CodeBlockMarshaller.h"
#include "Framework/Text/SlateTextLayout.h"
#include "Styling/WidgetStyle.h"
#include "Support/DrawnElements.h"
#include "Support/UserDriver.h"
#include "Widgets.h"
#include "Widgets/SNullWidget.h"
#include <gtest/gtest.h>

namespace
{

// A layout as a code block has one, in letters that are all 8 units wide.
class CodeBlockMarshaller : public testing::Test
{
protected:
	void Show(const FString& Code)
	{
		Layout->ClearLines();
		Marshaller->SetText(Code, *Layout);
		Layout->UpdateIfNeeded();
	}

	// The runs of all lines, as in: Keyword"int" WhiteSpace" " Normal"x".
	std::string GetRuns() const
	{
		std::string Result;
		std::istringstream Lines(ToUtf8(Layout->ToDebugString().Replace(TEXT("CodeBlock."), TEXT(""))));
		for (std::string Line; std::getline(Lines, Line);)
		{
			const size_t Begin = Line.find(": ");
			Result += (Result.empty() ? "" : "\n") + (Begin == std::string::npos ? std::string() : Line.substr(Begin + 2));
		}
		return Result;
	}

	// A letter for the color of each character: Normal, Operator and keyword, String, Comment, Preprocessor.
	std::string GetColors() const
	{
		FSlateWindowElementList Elements;
		Elements.BeginChunk(nullptr, {});
		Layout->Paint(FGeometry(), FSlateRect(0.0f, 0.0f, 1.0e6f, 1.0e6f), Elements, 0, FWidgetStyle(), ESlateDrawEffect::None);
		std::string Result;
		double Row = 0.0;
		ForEachDrawn(*Elements.EndChunk(),
			[&](const FSlateDrawElement& Element, const FSlateRect&)
			{
				const double Top = Element.GetGeometry().GetRenderBoundingRect().Top;
				Result += !Result.empty() && Top > Row ? "\n" : "";
				Row = Top;
				const int32 Length = std::get<FSlateTextPayload>(Element.GetPayload()).Text->CaretOffsets.Num() - 1;
				Result += std::string(static_cast<size_t>(Length), GetLetter(Element.GetTint()));
			});
		return Result;
	}

	static char GetLetter(const FLinearColor& Color)
	{
		const std::pair<FLinearColor, char> Letters[] = {{FLinearColor(0.9f, 0.95f, 1.0f), 'N'}, {FLinearColor(1.0f, 0.7f, 0.4f), 'O'},
			{FLinearColor(0.5f, 0.9f, 0.4f), 'S'}, {FLinearColor(0.5f, 0.7f, 0.9f), 'C'}, {FLinearColor(1.0f, 0.6f, 1.0f), 'P'}};
		const auto Found = std::find_if(std::begin(Letters), std::end(Letters), [&](const auto& Letter) { return Letter.first == Color; });
		return Found == std::end(Letters) ? '?' : Found->second;
	}

	FUserDriver User{SNullWidget::NullWidget, FVector2D(900.0, 400.0), 1.0f, EDriverFonts::Even};
	TSharedRef<FSlateTextLayout> Layout = FSlateTextLayout::Create(*SNullWidget::NullWidget, FTextBlockStyle::GetDefault());
	TSharedRef<FCodeBlockMarshaller> Marshaller = FCodeBlockMarshaller::Create();
};

} // namespace

// For each state the run, its color and the color of what follows, for each of these tokens.
TEST_F(CodeBlockMarshaller, StateAndTokenDecideRunColorAndNextState)
{
	const char* const Tokens[] = {"\"", "'", "#if", "//", "/*", "*/", "for", "+", "$"};
	const struct
	{
		const char* Opening;
		const char* Looks;
	} Rows[] = {
		{"", "String:SS String:SS PreProcessorKeyword:PN Comment:CC Comment:CC Operator:ON Keyword:ON Operator:ON Normal:NN "},
		{"\"", "Normal:SN String:SS String:SS String:SS String:SS String:SS String:SS String:SS String:SS "},
		{"'", "String:SS Normal:SN String:SS String:SS String:SS String:SS String:SS String:SS String:SS "},
		{"//", "Comment:CC Comment:CC Comment:CC Comment:CC Comment:CC Comment:CC Comment:CC Comment:CC Comment:CC "},
		{"/*", "Comment:CC Comment:CC Comment:CC Comment:CC Comment:CC Comment:CN Comment:CC Comment:CC Comment:CC "},
	};
	for (const auto& Row : Rows)
	{
		std::string Looks;
		for (const std::string Token : Tokens)
		{
			Show(FString((Row.Opening + (" " + Token) + " x").c_str()));
			const std::string Runs = GetRuns();
			const std::string Mark = "WhiteSpace\" \" ";
			const size_t Begin = Runs.find(Mark) + Mark.size();
			const std::string Colors = GetColors();
			Looks += Runs.substr(Begin, Runs.find('"', Begin) - Begin) + ":" + Colors[strlen(Row.Opening) + 1] + Colors.back() + " ";
		}
		EXPECT_EQ(Looks, Row.Looks) << Row.Opening;
	}
}

TEST_F(CodeBlockMarshaller, CarriesTheStateAcrossLines)
{
	const struct
	{
		const char* Code;
		const char* Colors;
	} Rows[] = {
		{"// a\nb", "CCNC\nN"},
		{"/* a\n\n for */ b", "CCNC\nNCCCNCCNN"},
		{"\"a\n\nb\"c", "SS\nSSN"},
		{"it's\n\tx' y", "NNSS\nNSSNN"},
		{"\"a\\\"b\"", "SSSSNS"},
		{"#include <a/b.h> 42", "PPPPPPPPNONONONONNN"},
		{"format for2 u8\"x\"", "NNNNNNNNNNNNNNSSS"},
		{"a&&b->c<<=d", "NOONOONOOON"},
	};
	for (const auto& Row : Rows)
	{
		Show(FString(Row.Code));
		EXPECT_EQ(GetColors(), Row.Colors) << Row.Code;
	}
	Show(FString("\"a b\n\nc"));
	EXPECT_EQ(GetRuns(), "String\"\"\" String\"a\" WhiteSpace\" \" String\"b\"\n\nString\"c\"");
	Show(FString("x"));
	EXPECT_EQ(GetRuns(), "Normal\"x\"") << "nothing is left of the text before";
}

// A block that streams in is made anew with each piece, and takes over what the one before knew.
TEST_F(CodeBlockMarshaller, ABlockThatGrowsLooksAsIfMadeAtOnce)
{
	FString Code;
	for (int32 Line = 0; Line < 60; ++Line)
	{
		Code += Line % 7 == 0 ? TEXT("\tcall(\"open\n\t/* a \" b // it's\n") : TEXT("for x; */ return 'c'\r\n");
	}
	TArray<FString> Codes;
	for (int32 Length = 0; Length < Code.Len(); Length += 37)
	{
		Codes.Add(Code.Left(Length));
	}
	Codes.Append(
		{Code, Code + TEXT("\""), Code.Left(500), TEXT("other\n") + Code, FString(), Code.Replace(TEXT("\r"), TEXT("")), Code, Code});

	// What is made from a source, and is held until the next is made.
	TSharedPtr<FCodeBlockMarshaller> LastMarshaller;
	TSharedPtr<FSlateTextLayout> LastLayout;
	const auto Print = [&](const FString& Source)
	{
		const TSharedRef<FSlateTextLayout> NewLayout = FSlateTextLayout::Create(*SNullWidget::NullWidget, FTextBlockStyle::GetDefault());
		const TSharedRef<FCodeBlockMarshaller> NewMarshaller = FCodeBlockMarshaller::Create();
		NewMarshaller->SetText(Source, *NewLayout);
		NewLayout->SetScale(1.5f);
		NewLayout->UpdateIfNeeded();
		LastLayout = NewLayout;
		LastMarshaller = NewMarshaller;
		return NewLayout->ToDebugString();
	};
	TArray<FString> Expected;
	for (const FString& Source : Codes)
	{
		LastLayout.Reset();
		LastMarshaller.Reset();
		Expected.Add(Print(Source));
	}
	for (int32 Index = 0; Index < Codes.Num(); ++Index)
	{
		EXPECT_TEXT(Print(Codes[Index]), Expected[Index]) << Index;
	}
}

TEST_F(CodeBlockMarshaller, ATabIsFourSpacesWide)
{
	Show(FString("\tx\n    x\n \t \t x\n           x"));
	const auto LeftOf = [this](int32 Line, int32 Offset)
	{
		return Layout->GetCaretRect({FTextLocation(Line, Offset)}).Left;
	};
	EXPECT_GT(LeftOf(0, 1), 0.0f);
	EXPECT_FLOAT_EQ(LeftOf(0, 1), LeftOf(1, 4));
	EXPECT_FLOAT_EQ(LeftOf(2, 5), LeftOf(3, 11));
}
