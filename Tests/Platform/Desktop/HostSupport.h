// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Brushes/SlateColorBrush.h"
#include "DesktopApplication.h"
#include "Framework/Application/SlateApplication.h"
#include "QSlateWidget.h"
#include "Widgets/SLeafWidget.h"
#include "Widgets/SWindow.h"

#include <QApplication>
#include <QMouseEvent>
#include <gtest/gtest.h>

/** A square of one color that writes down what input it gets. */
class SProbe : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SProbe) {}
	SLATE_END_ARGS()

	void Construct(const FArguments&) {}

	void SetColor(const FLinearColor& InColor)
	{
		Color = InColor;
		Invalidate(EInvalidateWidgetReason::Paint);
	}

	using FEvents = std::vector<std::string>;

	/** What came since the last call, one word or two each. */
	FEvents TakeEvents() { return std::exchange(Events, FEvents()); }

	TArray<FPointerEvent> PointerEvents;
	FTextCompositionEvent Composition;

	FString GetShownText() const override { return TEXT("probe"); }
	bool SupportsKeyboardFocus() const override { return true; }

	FReply OnMouseButtonDown(const FGeometry&, const FPointerEvent& Event) override
	{
		return Note("down ", Event).CaptureMouse(SharedThis(this));
	}
	FReply OnMouseButtonUp(const FGeometry&, const FPointerEvent& Event) override { return Note("up ", Event).ReleaseMouseCapture(); }
	FReply OnMouseButtonDoubleClick(const FGeometry&, const FPointerEvent& Event) override { return Note("double ", Event); }
	FReply OnMouseMove(const FGeometry&, const FPointerEvent& Event) override { return Note("move", Event); }
	FReply OnMouseWheel(const FGeometry&, const FPointerEvent& Event) override { return Note("wheel", Event); }
	void OnMouseLeave(const FPointerEvent&) override { Note("leave"); }
	FReply OnKeyDown(const FGeometry&, const FKeyEvent& Event) override { return Note("key " + Name(Event.GetKey())); }
	FReply OnKeyUp(const FGeometry&, const FKeyEvent& Event) override { return Note("keyup " + Name(Event.GetKey())); }
	FReply OnKeyChar(const FGeometry&, const FCharacterEvent& Event) override
	{
		return Note("char " + QString::number(Event.GetCharacter(), 16).toStdString());
	}
	FReply OnTextComposition(const FGeometry&, const FTextCompositionEvent& Event) override
	{
		Composition = Event;
		return Note("composition");
	}
	FReply OnFocusReceived(const FGeometry&, const FFocusEvent&) override { return Note("focus"); }
	void OnFocusLost(const FFocusEvent&) override { Note("blur"); }

protected:
	FVector2D ComputeDesiredSize(float) const override { return FVector2D(40.0, 20.0); }

	int32 OnPaint(const FPaintArgs&, const FGeometry& Geometry, const FSlateRect&, FSlateWindowElementList& OutDrawElements, int32 LayerId,
		const FWidgetStyle&, bool) const override
	{
		const FSlateColorBrush Brush(FLinearColor::White);
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, Geometry.ToPaintGeometry(), &Brush, ESlateDrawEffect::None, Color);
		return LayerId;
	}

private:
	static std::string Name(const FKey& Key) { return TCHAR_TO_UTF8(*Key.ToString()); }

	FReply Note(const std::string& Word)
	{
		Events.push_back(Word);
		return FReply::Handled();
	}

	FReply Note(const char* Word, const FPointerEvent& Event)
	{
		PointerEvents.Add(Event);
		return Note(Word + (Event.GetEffectingButton().IsValid() ? Name(Event.GetEffectingButton()) : std::string()));
	}

	FLinearColor Color = FLinearColor::White;
	FEvents Events;
};

/** Lets frames run until nothing is left to do. */
inline void RunFrames()
{
	FFrameLoop& Loop = FDesktopApplication::Get().GetFrameLoop();
	for (int Round = 0; Round < 200 && !Loop.IsIdle(); ++Round)
	{
		QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
	}
	EXPECT_TRUE(Loop.IsIdle());
	QCoreApplication::processEvents();
}

/** A window of a hundred by fifty units with content. */
class FTestHost
{
public:
	explicit FTestHost(const TSharedRef<SWidget>& Content)
		: Window(SNew(SWindow)[Content])
		, Widget(FDesktopApplication::Get(), Window)
	{
		Widget.resize(100, 50);
		Widget.show();
		Widget.activateWindow();
		Widget.setFocus();
		RunFrames();
	}

	void Mouse(QEvent::Type Type, const QPointF& Position, Qt::MouseButton Button, Qt::MouseButtons Pressed,
		Qt::KeyboardModifiers Modifiers = Qt::NoModifier)
	{
		QMouseEvent Event(Type, Position, Widget.mapToGlobal(Position), Button, Pressed, Modifiers);
		QApplication::sendEvent(&Widget, &Event);
	}

	/** Whether the widget took it. */
	bool Key(QEvent::Type Type, Qt::Key Key, Qt::KeyboardModifiers Modifiers = Qt::NoModifier, const QString& Text = QString())
	{
		QKeyEvent Event(Type, Key, Modifiers, Text);
		Event.ignore();
		QApplication::sendEvent(&Widget, &Event);
		return Event.isAccepted();
	}

	TSharedRef<SWindow> Window;
	QSlateWidget Widget;
};
