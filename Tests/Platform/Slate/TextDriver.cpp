// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextDriver.h"

#include "Widgets/SNullWidget.h"

namespace
{
const FLinearColor SelectionColor(0.1f, 0.2f, 0.7f);
} // namespace

FTextTest::FTextTest()
	: FUserDriver(SNullWidget::NullWidget, FVector2D(1000.0, 400.0), 1.0f, EDriverFonts::Even)
{
	Style.SetFont(FSlateFontInfo("Regular", Points));
	Style.SetSelectedBackgroundColor(SelectionColor);
}

void FTextTest::Show(const TSharedRef<SWidget>& Content, float Width, float Height, float Scale)
{
	GetWindow()->SetContent(Content);
	SetScale(Scale);
	Resize(FVector2D(Width, Height));
}

SMultiLineEditableText::FArguments FTextTest::Arguments()
{
	SMultiLineEditableText::FArguments Args;
	Args.TextStyle(&Style);
	return Args;
}

SMultiLineEditableText::FArguments FTextTest::ReadOnly(const FString& InText)
{
	return Arguments().Text(FText::FromString(InText)).IsReadOnly(true);
}

void FTextTest::ShowText(const char* InText, float Width, float Height)
{
	ShowText(Arguments().Text(FText::FromString(FString(InText))).AutoWrapText(true), Width, Height);
}

void FTextTest::ShowText(const SMultiLineEditableText::FArguments& Args, float Width, float Height, float Scale)
{
	Text = MakeSlateDecl<SMultiLineEditableText>(TEXT("SMultiLineEditableText")) <<= Args;
	Show(Text.ToSharedRef(), Width, Height, Scale);
}

FTextScreen FTextTest::ReadScreen()
{
	Frame();
	return FTextScreen(*GetWindow()->GetDisplayList(), SelectionColor, Row * GetWindow()->GetDPIScaleFactor());
}

void FTextTest::Focus()
{
	Application().SetKeyboardFocus(Text);
	Frame();
}

void FTextTest::ClickLetter(int32 Column, int32 RowIndex)
{
	ClickAt(FVector2D(Column * Letter + 1.0, RowIndex * Row + 5.0));
}

void FTextTest::DoubleClickLetter(int32 Column, int32 RowIndex)
{
	DoubleClickAt(FVector2D(Column * Letter + 1.0, RowIndex * Row + 5.0));
}

void FTextTest::Compose(const TCHAR* Composition, const TCHAR* Commit, int32 ReplaceFrom, int32 ReplaceLength)
{
	FTextCompositionEvent Event;
	Event.Composition = Composition;
	Event.CaretInComposition = Event.Composition.Len();
	Event.Commit = Commit;
	Event.ReplaceFrom = ReplaceFrom;
	Event.ReplaceLength = ReplaceLength;
	Application().ProcessTextCompositionEvent(GetWindow(), Event);
	Frame();
}
