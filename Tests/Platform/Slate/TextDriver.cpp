// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextDriver.h"

#include "Containers/Ticker.h"

namespace
{
const FLinearColor SelectionColor(0.1f, 0.2f, 0.7f);
} // namespace

FTextTest::FTextTest()
{
	FSlateApplication::Create(Desktop);
	Window = SNew(SWindow);
	Application().AddWindow(Window.ToSharedRef());
}

FTextTest::~FTextTest()
{
	Text.Reset();
	Window.Reset();
	FSlateApplication::Shutdown();
}

FTextBlockStyle FTextTest::MakeStyle()
{
	FTextBlockStyle Style;
	Style.SetFont(FSlateFontInfo("Regular", Letter));
	Style.SetSelectedBackgroundColor(SelectionColor);
	return Style;
}

void FTextTest::Show(const TSharedRef<SWidget>& Content, float Width, float Height, float Scale)
{
	Window->SetClientArea(FVector2D(Width, Height) * Scale, Scale);
	Window->SetContent(Content);
	Frame();
}

void FTextTest::Frame(float Seconds)
{
	FTSTicker::GetCoreTicker().Tick(Seconds);
	Application().Tick(Seconds);
}

SMultiLineEditableText::FArguments FTextTest::Arguments()
{
	SMultiLineEditableText::FArguments Args;
	Args.TextStyle(&Style);
	return Args;
}

void FTextTest::ShowText(const FString& InText, float Width, float Height)
{
	ShowText(Arguments().Text(FText::FromString(InText)).AutoWrapText(true), Width, Height);
}

void FTextTest::ShowText(const SMultiLineEditableText::FArguments& Args, float Width, float Height, float Scale)
{
	Text = MakeSlateDecl<SMultiLineEditableText>(TEXT("SMultiLineEditableText")) <<= Args;
	Show(Text.ToSharedRef(), Width, Height, Scale);
}

FTextScreen FTextTest::ReadScreen()
{
	Frame();
	return FTextScreen(*Window->GetDisplayList(), SelectionColor, Row * Window->GetDPIScaleFactor());
}

FString FTextTest::Screen()
{
	return ReadScreen().ToString();
}

void FTextTest::Focus()
{
	Application().SetKeyboardFocus(Text);
	Frame();
}

FPointerEvent FTextTest::MakePointer(float X, float Y, const FKey& Button, float WheelDelta, const FModifierKeysState& Modifiers)
{
	MousePosition = FVector2D(X, Y);
	return FPointerEvent(MousePosition, Button, WheelDelta, Modifiers);
}

void FTextTest::Press(float X, float Y, const FModifierKeysState& Modifiers)
{
	MoveMouse(X, Y);
	Application().ProcessMouseButtonDownEvent(Window.ToSharedRef(), MakePointer(X, Y, EKeys::LeftMouseButton, 0.0f, Modifiers));
	Frame();
}

void FTextTest::MoveMouse(float X, float Y)
{
	Application().ProcessMouseMoveEvent(Window.ToSharedRef(), MakePointer(X, Y, EKeys::Invalid));
	Frame();
}

void FTextTest::Release()
{
	const float X = static_cast<float>(MousePosition.X);
	const float Y = static_cast<float>(MousePosition.Y);
	Application().ProcessMouseButtonUpEvent(Window.ToSharedRef(), MakePointer(X, Y, EKeys::LeftMouseButton));
	Frame();
}

void FTextTest::Click(int32 Column, int32 RowIndex, const FModifierKeysState& Modifiers)
{
	Press(Column * Letter + 1.0f, RowIndex * Row + 5.0f, Modifiers);
	Release();
}

void FTextTest::DoubleClick(int32 Column, int32 RowIndex)
{
	Click(Column, RowIndex);
	const FPointerEvent Event = MakePointer(Column * Letter + 1.0f, RowIndex * Row + 5.0f, EKeys::LeftMouseButton);
	Application().ProcessMouseButtonDoubleClickEvent(Window.ToSharedRef(), Event);
	Release();
}

bool FTextTest::Wheel(float Notches)
{
	const float X = static_cast<float>(MousePosition.X);
	const float Y = static_cast<float>(MousePosition.Y);
	const bool bTaken = Application().ProcessMouseWheelEvent(Window.ToSharedRef(), MakePointer(X, Y, EKeys::Invalid, Notches));
	Frame();
	return bTaken;
}

void FTextTest::Key(const FKey& InKey, const FModifierKeysState& Modifiers)
{
	Application().ProcessKeyDownEvent(Window.ToSharedRef(), FKeyEvent(InKey, Modifiers));
	Application().ProcessKeyUpEvent(Window.ToSharedRef(), FKeyEvent(InKey, Modifiers));
	Frame();
}

void FTextTest::Keys(const FKey& InKey, int32 Count, const FModifierKeysState& Modifiers)
{
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Key(InKey, Modifiers);
	}
}

void FTextTest::Type(const TCHAR* Characters)
{
	for (; *Characters; ++Characters)
	{
		Application().ProcessKeyCharEvent(Window.ToSharedRef(), FCharacterEvent(*Characters));
	}
	Frame();
}

void FTextTest::Compose(const TCHAR* Composition, const TCHAR* Commit, int32 ReplaceFrom, int32 ReplaceLength)
{
	FTextCompositionEvent Event;
	Event.Composition = Composition;
	Event.CaretInComposition = Event.Composition.Len();
	Event.Commit = Commit;
	Event.ReplaceFrom = ReplaceFrom;
	Event.ReplaceLength = ReplaceLength;
	Application().ProcessTextCompositionEvent(Window.ToSharedRef(), Event);
	Frame();
}
