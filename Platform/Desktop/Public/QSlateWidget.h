// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "GenericPlatform/ICursor.h"
#include "Layout/SlateRect.h"
#include "Rendering/SlatePainter.h"
#include "Templates/SharedPointer.h"

#include <QImage>
#include <QWidget>

class FDesktopApplication;
class FPointerEvent;
class SWidget;
class SWindow;
struct FKey;

/** Shows a Slate window within a Qt window, and hands it the input. */
class QSlateWidget : public QWidget
{
public:
	QSlateWidget(FDesktopApplication& InDesktop, const TSharedRef<SWindow>& InWindow, QWidget* Parent = nullptr);
	~QSlateWidget() override;

	const TSharedRef<SWindow>& GetWindow() const { return Window; }

	/** What is on screen after the last frame, in device pixels. */
	const QImage& GetPicture() const { return Picture; }

	void ShowCursor(EMouseCursor::Type Cursor);
	/** Where the caret is, in device pixels; unset while no text can be composed. */
	void SetTextInputArea(const TOptional<FSlateRect>& Area);

	QVariant inputMethodQuery(Qt::InputMethodQuery Query) const override;

protected:
	bool event(QEvent* Event) override;
	void paintEvent(QPaintEvent* Event) override;
	void resizeEvent(QResizeEvent* Event) override;
	void mousePressEvent(QMouseEvent* Event) override;
	void mouseReleaseEvent(QMouseEvent* Event) override;
	void mouseDoubleClickEvent(QMouseEvent* Event) override;
	void mouseMoveEvent(QMouseEvent* Event) override;
	void wheelEvent(QWheelEvent* Event) override;
	void leaveEvent(QEvent* Event) override;
	void keyPressEvent(QKeyEvent* Event) override;
	void keyReleaseEvent(QKeyEvent* Event) override;
	void inputMethodEvent(QInputMethodEvent* Event) override;
	void focusInEvent(QFocusEvent* Event) override;
	void focusOutEvent(QFocusEvent* Event) override;
	/** Tab belongs to the widgets inside. */
	bool focusNextPrevChild(bool) override { return false; }

private:
	void UpdateClientArea();
	void ShowFrame();
	bool WantsAsInput(const QKeyEvent& Event) const;
	FPointerEvent MakePointerEvent(const QPointF& Position, const FKey& Button, Qt::KeyboardModifiers Modifiers, float WheelDelta = 0.0f);

	FDesktopApplication& Desktop;
	TSharedRef<SWindow> Window;
	FDelegateHandle ShowFrameHandle;
	FSlatePainter Painter;
	QImage Picture;
	FSlateRect CaretRect;
	bool bRepaintAll = true;
	/** Gets the focus back when the window does. */
	TWeakPtr<SWidget> FocusedBefore;
};
