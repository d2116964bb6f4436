// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/ChatItemWidgets/SMarkdownTextbox.h"
#include "Framework/Application/SlateApplication.h"
#include "Support/UserDriver.h"
#include "Widgets.h"
#include "Widgets/Text/SMultiLineEditableText.h"
#include <QImage>
#include <gtest/gtest.h>

namespace
{

// A message view in a window, and a user before it.
class CodeWidget : public testing::Test
{
protected:
	void Show(const FString& Markup)
	{
		Message->SetMarkdownText(Markup);
		User.Frame();
	}

	TSharedRef<SMultiLineEditableText> GetView() const
	{
		return StaticCastSharedRef<SMultiLineEditableText>(FindOne(Message, TEXT("SMultiLineEditableText")));
	}

	TSharedRef<SWidget> GetBlock() const { return FindOne(Message, TEXT("SSCodeWidget")); }

	std::string GetCode() const { return ToUtf8(FindOne(GetBlock(), TEXT("SMultiLineEditableText"))->GetShownText()); }

	std::string CopyByButton()
	{
		User.SetClipboard(TEXT("before"));
		User.Click(TEXT("Copy"));
		return ToUtf8(User.GetClipboard());
	}

	TSharedRef<SMarkdownTextbox> Message = SNew(SMarkdownTextbox);
	// What is selected by a click at a place and Ctrl+A.
	std::string CopyAllAt(const FVector2D& Place)
	{
		User.ClickAt(Place);
		User.Press(TEXT("Ctrl+A"));
		User.Press(TEXT("Ctrl+C"));
		return ToUtf8(User.GetClipboard());
	}

	FUserDriver User{Message, FVector2D(900.0, 400.0)};
};

FSlateRect RoomOf(const TSharedRef<SWidget>& Widget)
{
	return Widget->GetCachedGeometry().GetRenderBoundingRect();
}

} // namespace

TEST_F(CodeWidget, StandsForAnyRunThatIsNamedCode)
{
	Show(TEXT("<VorelMarkdown.Strong>a</> <Nobody.Knows>b</> c"));
	EXPECT_EQ(ReadTexts(Message), "a b c");
	Show(TEXT("<CODE>x</> and <Code lang=\"cpp\">y</>"));
	EXPECT_EQ(FindAll(Message, TEXT("SSCodeWidget")).size(), 2u);
	Show(FString());
	EXPECT_EQ(ReadTexts(Message), "");
}

TEST_F(CodeWidget, CopiesWhatItShows)
{
	const struct
	{
		const TCHAR* Markup;
		const char* Code;
	} Rows[] = {
		{TEXT("a__NL____nl__b << \"c\\nd\\Ne\""), "a\n\nb << \"c\nd\ne\""},
		{TEXT("\tint i;  __NL__i = '<';"), "\tint i;  \ni = '<';"},
		{TEXT("__NL__"), "\n"},
	};
	for (const auto& Row : Rows)
	{
		Show(FString(TEXT("<code>")) + Row.Markup + TEXT("</>"));
		EXPECT_EQ(GetCode(), Row.Code);
		EXPECT_EQ(CopyByButton(), Row.Code);
	}
	Show(TEXT("<code></>"));
	EXPECT_EQ(GetCode(), "");
	EXPECT_EQ(CopyByButton(), "before");
}

TEST_F(CodeWidget, AClickOnAButtonThatIsReplacedMeanwhileDoesNothing)
{
	for (const bool bFrameBetween : {true, false})
	{
		Show(TEXT("<code>old</>"));
		const FVector2D Button = RoomOf(FindOne(Message, TEXT("SButton"))).GetTopLeft() + FVector2D(5.0, 5.0);
		User.SetClipboard(TEXT("before"));
		User.MouseDown(Button);
		Message->SetMarkdownText(TEXT("<code>new</>"));
		if (bFrameBetween)
		{
			User.Frame();
		}
		User.MouseUp(Button);
		EXPECT_EQ(ToUtf8(User.GetClipboard()), "before");
		EXPECT_EQ(CopyByButton(), "new");
	}
}

TEST_F(CodeWidget, TurnsTheWheelOverATextThatIsNotYetLaidOut)
{
	Show(TEXT("old"));
	Message->SetMarkdownText(TEXT("new"));
	User.WheelAt(FVector2D(20.0, 10.0), -1.0f);
	EXPECT_EQ(ReadTexts(Message), "new");
}

TEST_F(CodeWidget, Is620WideWithItsButtonInTheCornerAndCutsLongLinesOff)
{
	Show(TEXT("<code>a__NL__end</>"));
	const FSlateRect Short = RoomOf(GetBlock());
	const FSlateRect Code = RoomOf(FindOne(GetBlock(), TEXT("SMultiLineEditableText")));
	const FSlateRect Button = RoomOf(FindOne(GetBlock(), TEXT("SButton")));
	EXPECT_EQ(Short.GetTopLeft(), FVector2D(4.0, 4.0));
	EXPECT_EQ(Code.GetTopLeft() - Short.GetTopLeft(), FVector2D(10.0, 0.0));
	EXPECT_EQ(Short.GetSize() - Code.GetSize(), FVector2D(20.0, 10.0));
	EXPECT_EQ(Button.Right, Short.Left + 612.0f);
	EXPECT_EQ(Button.Top, Short.Top + 8.0f);

	for (const double Width : {300.0, 900.0})
	{
		User.Resize(FVector2D(Width, 400.0));
		Show(FString(TEXT("<code>a__NL__")) + FString::ChrN(500, TEXT('W')) + TEXT("</>"));
		EXPECT_EQ(RoomOf(GetBlock()).GetSize(), FVector2D(620.0, Short.GetSize().Y)) << Width;
	}
	const QImage Picture = User.Picture();
	int LastLit = 0;
	for (int Column = 0; Column < Picture.width(); ++Column)
	{
		LastLit = qGray(Picture.pixel(Column, static_cast<int>(Code.Bottom) - 6)) > 150 ? Column : LastLit;
	}
	EXPECT_LT(LastLit, Code.Right);
	EXPECT_GT(LastLit, Code.Right - 20.0f);
}

TEST_F(CodeWidget, IsSelectedLikeAnyTextAndIsOneInvisibleCharacterOfItsMessage)
{
	Show(TEXT("a <code>int a;__NL__\"b\"</> b"));
	const FVector2D InCode = RoomOf(FindOne(GetBlock(), TEXT("SMultiLineEditableText"))).GetTopLeft() + FVector2D(5.0, 5.0);
	EXPECT_EQ(CopyAllAt(InCode), "int a;\n\"b\"");
	User.Type(TEXT("typed"));
	EXPECT_EQ(GetCode(), "int a;\n\"b\"") << "it cannot be changed";
	EXPECT_EQ(CopyAllAt(FVector2D(6.0, RoomOf(GetBlock()).Bottom)), "a \xE2\x80\x8B b");
	User.Type(TEXT("typed"));
	EXPECT_EQ(ReadTexts(GetView()).find("typed"), std::string::npos);

	// A selection in the message outlives the focus.
	User.ClearFocus();
	FSlateApplication::Get().SetKeyboardFocus(GetView(), EFocusCause::SetDirectly);
	User.SetClipboard(TEXT("before"));
	User.Press(TEXT("Ctrl+C"));
	EXPECT_EQ(ToUtf8(User.GetClipboard()), "a \xE2\x80\x8B b");
}
