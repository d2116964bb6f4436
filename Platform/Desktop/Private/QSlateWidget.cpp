// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "QSlateWidget.h"

#include "Accessibility/AccessibleHost.h"
#include "Application/InputTranslation.h"
#include "DesktopApplication.h"
#include "Framework/Application/SlateApplication.h"
#include "Misc/CoreDelegates.h"
#include "Rendering/ColorConversion.h"
#include "Styling/AppStyle.h"
#include "Widgets/SWindow.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QKeyEvent>
#include <QPainter>
#include <QSet>
#include <QRegion>

// Mouse wheels report eighths of a degree, of which one notch has this many.
static constexpr float NotchInEighthsOfDegree = 120.0f;

static constexpr int MostPartsPerFrame = 8;

static FVector2D ToVector(const QPointF& Point)
{
	return FVector2D(Point.x(), Point.y());
}

QSlateWidget::QSlateWidget(FDesktopApplication& InDesktop, const TSharedRef<SWindow>& InWindow, QWidget* Parent)
	: QWidget(Parent)
	, Desktop(InDesktop)
	, Window(InWindow)
{
	setAttribute(Qt::WA_OpaquePaintEvent);
	setFocusPolicy(Qt::StrongFocus);
	setMouseTracking(true);
	FSlateApplication::Get().AddWindow(Window);
	ShowFrameHandle = Desktop.GetFrameLoop().OnShowFrame.AddRaw(this, &QSlateWidget::ShowFrame);
	UpdateClientArea();
}

QSlateWidget::~QSlateWidget()
{
	Desktop.ForgetHost(this);
	Desktop.GetFrameLoop().OnShowFrame.Remove(ShowFrameHandle);
	if (FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().RemoveWindow(Window);
	}
}

void QSlateWidget::UpdateClientArea()
{
	const double Scale = devicePixelRatioF();
	const QSize Pixels = (QSizeF(size()) * Scale).toSize();
	if (Picture.size() == Pixels && Window->GetDPIScaleFactor() == static_cast<float>(Scale))
	{
		return;
	}
	// What was shown stays until the next frame.
	QImage Resized = Picture.copy(QRect(QPoint(0, 0), Pixels));
	if (Resized.isNull())
	{
		Resized = QImage(Pixels, QImage::Format_ARGB32_Premultiplied);
		Resized.fill(Qt::transparent);
	}
	Picture = Resized;
	Window->SetClientArea(FVector2D(Pixels.width(), Pixels.height()), static_cast<float>(Scale));
	bRepaintAll = true;
}

void QSlateWidget::ShowFrame()
{
	if (!Window->GetDisplayList())
	{
		return;
	}
	// Parts that overlap are painted once; many small ones together.
	QRegion Damage;
	for (const FSlateRect& Rect : Window->TakeDamage())
	{
		Damage += QRectF(QPointF(Rect.Left, Rect.Top), QPointF(Rect.Right, Rect.Bottom)).toAlignedRect() & Picture.rect();
	}
	if (bRepaintAll || Damage.rectCount() > MostPartsPerFrame)
	{
		Damage = bRepaintAll ? Picture.rect() : Damage.boundingRect();
		bRepaintAll = false;
	}
	for (const QRect& Part : Damage)
	{
		Painter.Paint(Picture, *Window->GetDisplayList(), FSlateRect(Part.left(), Part.top(), Part.right() + 1.0f, Part.bottom() + 1.0f));
		const double Scale = Window->GetDPIScaleFactor();
		update(QRectF(QPointF(Part.topLeft()) / Scale, QSizeF(Part.size()) / Scale).toAlignedRect());
		Desktop.GetFrameLoop().NotePainted();
	}
	FAccessibleHost::Announce(*this);
}

void QSlateWidget::paintEvent(QPaintEvent* Event)
{
	UpdateClientArea();
	QPainter OnWidget(this);
	OnWidget.setClipRegion(Event->region());
	if (bRepaintAll)
	{
		OnWidget.fillRect(rect(), ToScreenColor(FAppStyle::Get().GetColor(TEXT("Colors.Background"))));
	}
	// The picture itself knows no scale, since it is painted in device pixels.
	OnWidget.drawImage(QRectF(QPointF(0.0, 0.0), QSizeF(Picture.size()) / Window->GetDPIScaleFactor()), Picture);
}

void QSlateWidget::resizeEvent(QResizeEvent*)
{
	UpdateClientArea();
}

FPointerEvent QSlateWidget::MakePointerEvent(const QPointF& Position, const FKey& Button, Qt::KeyboardModifiers Modifiers, float WheelDelta)
{
	Desktop.SetActiveHost(this);
	return FPointerEvent(ToVector(Position * Window->GetDPIScaleFactor()), Button, WheelDelta, InputTranslation::ToModifiers(Modifiers));
}

void QSlateWidget::mousePressEvent(QMouseEvent* Event)
{
	const FKey Button = InputTranslation::ToMouseButton(Event->button());
	if (Button.IsValid())
	{
		FSlateApplication::Get().ProcessMouseButtonDownEvent(Window, MakePointerEvent(Event->position(), Button, Event->modifiers()));
	}
}

void QSlateWidget::mouseReleaseEvent(QMouseEvent* Event)
{
	const FKey Button = InputTranslation::ToMouseButton(Event->button());
	if (Button.IsValid())
	{
		FSlateApplication::Get().ProcessMouseButtonUpEvent(Window, MakePointerEvent(Event->position(), Button, Event->modifiers()));
	}
}

void QSlateWidget::mouseDoubleClickEvent(QMouseEvent* Event)
{
	const FKey Button = InputTranslation::ToMouseButton(Event->button());
	if (Button.IsValid())
	{
		FSlateApplication::Get().ProcessMouseButtonDoubleClickEvent(
			Window, MakePointerEvent(Event->position(), Button, Event->modifiers()));
	}
}

void QSlateWidget::mouseMoveEvent(QMouseEvent* Event)
{
	FSlateApplication::Get().ProcessMouseMoveEvent(Window, MakePointerEvent(Event->position(), EKeys::Invalid, Event->modifiers()));
}

void QSlateWidget::wheelEvent(QWheelEvent* Event)
{
	const float Notches = static_cast<float>(Event->angleDelta().y()) / NotchInEighthsOfDegree;
	const bool bHandled = Notches != 0.0f && FSlateApplication::Get().ProcessMouseWheelEvent(
												 Window, MakePointerEvent(Event->position(), EKeys::Invalid, Event->modifiers(), Notches));
	Event->setAccepted(bHandled);
}

void QSlateWidget::leaveEvent(QEvent*)
{
	FSlateApplication::Get().ProcessMouseLeaveEvent(Window);
}

void QSlateWidget::keyPressEvent(QKeyEvent* Event)
{
	Desktop.SetActiveHost(this);
	const FModifierKeysState Modifiers = InputTranslation::ToModifiers(Event->modifiers());
	FSlateApplication& Application = FSlateApplication::Get();
	bool bHandled = Application.ProcessKeyDownEvent(Window, FKeyEvent(InputTranslation::ToKey(*Event), Modifiers, Event->isAutoRepeat()));
	for (const TCHAR Character : InputTranslation::ToText(*Event))
	{
		bHandled |= Application.ProcessKeyCharEvent(Window, FCharacterEvent(Character, Modifiers, Event->isAutoRepeat()));
	}
	Event->setAccepted(bHandled);
}

void QSlateWidget::keyReleaseEvent(QKeyEvent* Event)
{
	const FKeyEvent KeyEvent(InputTranslation::ToKey(*Event), InputTranslation::ToModifiers(Event->modifiers()), Event->isAutoRepeat());
	Event->setAccepted(FSlateApplication::Get().ProcessKeyUpEvent(Window, KeyEvent));
}

// What editing texts does with the control key held; the others are the menus'.
static bool EditsWithControl(int Key)
{
	static const QSet<int> Keys = {Qt::Key_A, Qt::Key_C, Qt::Key_V, Qt::Key_X, Qt::Key_Y, Qt::Key_Z, Qt::Key_Left, Qt::Key_Right,
		Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Insert, Qt::Key_Return};
	return Keys.contains(Key);
}

bool QSlateWidget::WantsAsInput(const QKeyEvent& Event) const
{
	const bool bWrites = !InputTranslation::ToText(Event).IsEmpty();
	const bool bEdits = Event.modifiers().testFlag(Qt::ControlModifier) && EditsWithControl(Event.key());
	return testAttribute(Qt::WA_InputMethodEnabled) && (bWrites || bEdits);
}

bool QSlateWidget::event(QEvent* Event)
{
	// While text is edited, its keys are not the menus' shortcuts.
	if (Event->type() == QEvent::ShortcutOverride && WantsAsInput(static_cast<QKeyEvent&>(*Event)))
	{
		Event->accept();
		return true;
	}
	if (Event->type() == QEvent::ScreenChangeInternal || Event->type() == QEvent::Show)
	{
		UpdateClientArea();
	}
	if (Event->type() == QEvent::WindowActivate)
	{
		FCoreDelegates::ApplicationHasReactivatedDelegate.Broadcast();
	}
	return QWidget::event(Event);
}

void QSlateWidget::inputMethodEvent(QInputMethodEvent* Event)
{
	Desktop.SetActiveHost(this);
	FSlateApplication::Get().ProcessTextCompositionEvent(Window, InputTranslation::ToComposition(*Event));
	Event->accept();
}

QVariant QSlateWidget::inputMethodQuery(Qt::InputMethodQuery Query) const
{
	const double Scale = Window->GetDPIScaleFactor();
	switch (Query)
	{
	case Qt::ImEnabled:
		return testAttribute(Qt::WA_InputMethodEnabled);
	case Qt::ImCursorRectangle:
		return QRectF(QPointF(CaretRect.Left, CaretRect.Top) / Scale, QPointF(CaretRect.Right, CaretRect.Bottom) / Scale);
	default:
		return QWidget::inputMethodQuery(Query);
	}
}

void QSlateWidget::SetTextInputArea(const TOptional<FSlateRect>& Area)
{
	CaretRect = Area.Get(FSlateRect());
	setAttribute(Qt::WA_InputMethodEnabled, Area.IsSet());
	if (hasFocus())
	{
		QGuiApplication::inputMethod()->update(Qt::ImEnabled | Qt::ImCursorRectangle);
	}
}

void QSlateWidget::ShowCursor(EMouseCursor::Type Cursor)
{
	const Qt::CursorShape Shapes[] = {Qt::ArrowCursor, Qt::IBeamCursor, Qt::PointingHandCursor};
	setCursor(Shapes[Cursor]);
}

void QSlateWidget::focusInEvent(QFocusEvent* Event)
{
	Desktop.SetActiveHost(this);
	const TSharedPtr<SWidget> Former = FocusedBefore.Pin();
	FocusedBefore.Reset();
	if (Former && Event->reason() != Qt::MouseFocusReason)
	{
		FSlateApplication::Get().SetKeyboardFocus(Former, EFocusCause::WindowActivate);
	}
}

void QSlateWidget::focusOutEvent(QFocusEvent* Event)
{
	if (Event->reason() != Qt::PopupFocusReason)
	{
		Window->ClosePopup();
		FocusedBefore = FSlateApplication::Get().GetKeyboardFocusedWidget();
		FSlateApplication::Get().ClearKeyboardFocus(EFocusCause::WindowActivate);
	}
}
