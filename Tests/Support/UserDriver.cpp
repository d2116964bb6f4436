// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/UserDriver.h"

#include "Containers/Ticker.h"
#include "Editor.h"
#include "Framework/Application/SlateApplication.h"
#include "Rendering/SlatePainter.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWindow.h"
#include "Widgets/WidgetTreeDump.h"

#include <QImage>
#include <gtest/gtest.h>

/** The application of all drivers that live at a time. */
class FDriverSession
{
public:
	static TSharedRef<FDriverSession> Share(EDriverFonts Fonts)
	{
		static TWeakPtr<FDriverSession> Current;
		TSharedPtr<FDriverSession> Session = Current.Pin();
		if (!Session.IsValid())
		{
			Session = MakeShared<FDriverSession>(Fonts);
			Current = Session;
		}
		return Session.ToSharedRef();
	}

	explicit FDriverSession(EDriverFonts Fonts)
		: Desktop(MakeShared<FDriverDesktop>(Fonts))
	{
		FSlateApplication::Create(Desktop);
	}
	~FDriverSession() { FSlateApplication::Shutdown(); }

	TSharedRef<FDriverDesktop> Desktop;
};

namespace
{
constexpr int32 MostFramesToSettle = 8;

FKey FindKey(const FString& Name)
{
	if (Name.Len() == 1)
	{
		return FKey(*Name.ToUpper());
	}
	static const FKey NamedKeys[] = {EKeys::BackSpace, EKeys::Delete, EKeys::Insert, EKeys::Enter, EKeys::Escape, EKeys::SpaceBar,
		EKeys::Tab, EKeys::Left, EKeys::Right, EKeys::Up, EKeys::Down, EKeys::Home, EKeys::End, EKeys::PageUp, EKeys::PageDown};
	for (const FKey& Key : NamedKeys)
	{
		if (Key.ToString() == Name)
		{
			return Key;
		}
	}
	ADD_FAILURE() << "There is no key \"" << Name << "\"";
	return FKey();
}

/** "Ctrl+Shift+Z", "Enter"; a word that is no key's name fails the test. */
FKeyEvent ParseKeyEvent(const FString& KeyWithModifiers)
{
	TArray<FString> Words;
	KeyWithModifiers.ParseIntoArray(Words, TEXT("+"));
	const FString Name = Words.Pop();
	const auto TakeModifier = [&Words](const TCHAR* Modifier)
	{
		return Words.Remove(Modifier) > 0;
	};
	const FModifierKeysState Modifiers(TakeModifier(TEXT("Shift")), TakeModifier(TEXT("Ctrl")), TakeModifier(TEXT("Alt")));
	EXPECT_TRUE(Words.IsEmpty()) << KeyWithModifiers;
	return FKeyEvent(FindKey(Name), Modifiers);
}

using FTest = TFunctionRef<bool(const FString&)>;

bool Matches(const SWidget& Widget, FTest Test)
{
	const FName& Tag = Widget.GetTag();
	return Test(Widget.GetShownText()) || Test(Widget.GetHint()) || Test(Widget.GetAccessibleText().ToString()) ||
		   (Tag != NAME_None && Test(Tag.ToString()));
}

TSharedPtr<SWidget> FindFirst(const TSharedRef<SWidget>& Widget, FTest Test)
{
	if (!Widget->GetVisibility().IsVisible())
	{
		return nullptr;
	}
	FChildren& Children = *Widget->GetChildren();
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		if (const TSharedPtr<SWidget> Inner = FindFirst(Children.GetChildAt(Index), Test))
		{
			return Inner;
		}
	}
	return Matches(*Widget, Test) ? TSharedPtr<SWidget>(Widget) : nullptr;
}

/** As the driver says of texts. Collapsed and hidden widgets are passed over. */
TSharedPtr<SWidget> FindWidgetByText(const TSharedRef<SWidget>& Root, const FString& Text)
{
	const auto IsEqual = [&Text](const FString& Shown)
	{
		return Shown.Equals(Text, ESearchCase::CaseSensitive);
	};
	const auto IsContained = [&Text](const FString& Shown)
	{
		return Shown.Contains(Text, ESearchCase::CaseSensitive);
	};
	const TSharedPtr<SWidget> Equal = FindFirst(Root, IsEqual);
	return Equal.IsValid() ? Equal : FindFirst(Root, IsContained);
}
} // namespace

FUserDriver::FUserDriver(const TSharedRef<SWidget>& Content, const FVector2D& InSize, float InScale, EDriverFonts Fonts)
	: Session(FDriverSession::Share(Fonts))
	, Window(SNew(SWindow)[Content])
	, Size(InSize)
	, Scale(InScale)
{
	Window->SetClientArea(Size * Scale, Scale);
	FSlateApplication::Get().AddWindow(Window);
	Frame();
}

FUserDriver::~FUserDriver()
{
	FSlateApplication::Get().RemoveWindow(Window);
	Window->SetContent(SNullWidget::NullWidget);
}

void FUserDriver::RunFrame(float Seconds)
{
	FTSTicker::GetCoreTicker().Tick(Seconds);
	if (GEditor != nullptr)
	{
		GEditor->GetTimerManager()->Tick(Seconds);
	}
	FSlateApplication::Get().Tick(Seconds);
}

void FUserDriver::Frame()
{
	for (int32 Count = 0; Count < MostFramesToSettle && FSlateApplication::Get().IsFrameRequested(); ++Count)
	{
		RunFrame(0.0f);
	}
}

void FUserDriver::AdvanceTime(float Seconds)
{
	RunFrame(Seconds);
	Frame();
}

FPointerEvent FUserDriver::MakePointer(const FVector2D& Place, const FKey& Button, float WheelDelta) const
{
	return FPointerEvent(Place * Scale, Button, WheelDelta, Modifiers);
}

TOptional<FVector2D> FUserDriver::LocateMiddle(const FString& Text)
{
	Frame();
	const TSharedPtr<SWidget> Widget = Find(Text);
	if (!Widget.IsValid())
	{
		ADD_FAILURE() << "Nothing shows \"" << Text << "\":\n" << Tree();
		return {};
	}
	const FSlateRect Room = Widget->GetCachedGeometry().GetRenderBoundingRect();
	return (Room.GetTopLeft() + Room.GetSize() / 2.0) / Scale;
}

void FUserDriver::Click(const FString& Text)
{
	if (const TOptional<FVector2D> Middle = LocateMiddle(Text))
	{
		ClickAt(*Middle);
	}
}

void FUserDriver::ClickAt(const FVector2D& Place)
{
	MoveTo(Place);
	MouseDown(Place);
	MouseUp(Place);
}

void FUserDriver::DoubleClickAt(const FVector2D& Place)
{
	ClickAt(Place);
	FSlateApplication::Get().ProcessMouseButtonDoubleClickEvent(Window, MakePointer(Place, EKeys::LeftMouseButton));
	Frame();
	MouseUp(Place);
}

void FUserDriver::MoveTo(const FVector2D& Place)
{
	FSlateApplication::Get().ProcessMouseMoveEvent(Window, MakePointer(Place, FKey()));
	Frame();
}

void FUserDriver::MouseDown(const FVector2D& Place, const FKey& Button)
{
	FSlateApplication::Get().ProcessMouseButtonDownEvent(Window, MakePointer(Place, Button));
	Frame();
}

void FUserDriver::MouseUp(const FVector2D& Place, const FKey& Button)
{
	FSlateApplication::Get().ProcessMouseButtonUpEvent(Window, MakePointer(Place, Button));
	Frame();
}

void FUserDriver::LeaveWindow()
{
	FSlateApplication::Get().ProcessMouseLeaveEvent(Window);
	Frame();
}

void FUserDriver::Wheel(const FString& Text, float Notches)
{
	if (const TOptional<FVector2D> Middle = LocateMiddle(Text))
	{
		WheelAt(*Middle, Notches);
	}
}

void FUserDriver::WheelAt(const FVector2D& Place, float Notches)
{
	FSlateApplication::Get().ProcessMouseWheelEvent(Window, MakePointer(Place, FKey(), Notches));
	Frame();
}

void FUserDriver::Type(const FString& Characters)
{
	for (int32 Index = 0; Index < Characters.Len(); ++Index)
	{
		FSlateApplication::Get().ProcessKeyCharEvent(Window, FCharacterEvent(Characters[Index]));
	}
	Frame();
}

void FUserDriver::Press(const FString& KeyWithModifiers)
{
	KeyDown(KeyWithModifiers);
	KeyUp(KeyWithModifiers);
}

void FUserDriver::KeyDown(const FString& KeyWithModifiers)
{
	FSlateApplication::Get().ProcessKeyDownEvent(Window, ParseKeyEvent(KeyWithModifiers));
	Frame();
}

void FUserDriver::KeyUp(const FString& KeyWithModifiers)
{
	FSlateApplication::Get().ProcessKeyUpEvent(Window, ParseKeyEvent(KeyWithModifiers));
	Frame();
}

void FUserDriver::ClearFocus()
{
	FSlateApplication::Get().ClearKeyboardFocus();
	Frame();
}

void FUserDriver::Play(const FString& Keys)
{
	TArray<FString> Parts;
	Keys.ParseIntoArray(Parts, TEXT("'"), false);
	for (int32 Index = 0; Index < Parts.Num(); ++Index)
	{
		TArray<FString> Words;
		Parts[Index].ParseIntoArray(Words, TEXT(" "));
		for (const FString& Word : Index % 2 == 0 ? Words : TArray<FString>())
		{
			Press(Word);
		}
		Type(Index % 2 == 0 ? FString() : Parts[Index]);
	}
}

void FUserDriver::Resize(const FVector2D& InSize)
{
	Size = InSize;
	Window->SetClientArea(Size * Scale, Scale);
	Frame();
}

void FUserDriver::SetScale(float InScale)
{
	Scale = InScale;
	Resize(Size);
}

TSharedPtr<SWidget> FUserDriver::Find(const FString& Text) const
{
	const TSharedPtr<SWidget> Popup = Window->GetPopup();
	const TSharedPtr<SWidget> InPopup = Popup.IsValid() ? FindWidgetByText(Popup.ToSharedRef(), Text) : nullptr;
	return InPopup.IsValid() ? InPopup : FindWidgetByText(Window->GetContent(), Text);
}

TSharedPtr<SWidget> FUserDriver::GetFocused() const
{
	return FSlateApplication::Get().GetKeyboardFocusedWidget();
}

FString FUserDriver::Tree() const
{
	return FWidgetTreeDump::Dump(*Window);
}

QImage FUserDriver::Picture()
{
	const FVector2D& Pixels = Window->GetClientSizeInPixels();
	QImage Image(FMath::CeilToInt(Pixels.X), FMath::CeilToInt(Pixels.Y), QImage::Format_ARGB32_Premultiplied);
	Image.fill(Qt::black);
	FSlatePainter Painter;
	Painter.Paint(Image, *Window->GetDisplayList(), Window->GetWindowGeometryInWindow().GetLayoutBoundingRect());
	return Image;
}

FString FUserDriver::TakeLaunchedURLs()
{
	const FString Lines = FString::Join(GetDesktop().LaunchedURLs, TEXT("\n"));
	GetDesktop().LaunchedURLs.Empty();
	return Lines;
}

FDriverDesktop& FUserDriver::GetDesktop() const
{
	return *Session->Desktop;
}
