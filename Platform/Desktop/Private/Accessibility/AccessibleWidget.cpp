// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Accessibility/AccessibleWidget.h"

#include "Accessibility/AccessibleTextField.h"
#include "Framework/Application/SlateApplication.h"
#include "QSlateWidget.h"
#include "QtConversion.h"
#include "Widgets/Input/SComboBoxBase.h"
#include "Widgets/Input/SComboRow.h"
#include "Widgets/Input/SHyperlink.h"
#include "Widgets/SWindow.h"
#include "Widgets/Text/SMultiLineEditableText.h"

static QString ReadAll(SWidget& Widget)
{
	QStringList Texts = {ToQString(Widget.GetShownText())};
	FChildren& Children = *Widget.GetChildren();
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		Texts.append(ReadAll(*Children.GetChildAt(Index)));
	}
	Texts.removeAll(QString());
	return Texts.join(QLatin1Char(' '));
}

static bool IsReallyEnabled(const TSharedPtr<SWidget>& Widget)
{
	return !Widget || (Widget->IsEnabled() && IsReallyEnabled(Widget->GetParentWidget()));
}

FAccessibleWidget::FAccessibleWidget(QSlateWidget& InHost, const TSharedRef<SWidget>& InWidget)
	: Host(InHost)
	, Widget(InWidget)
{
}

FAccessibleWidget::~FAccessibleWidget() = default;

FAccessibleTextField* FAccessibleWidget::GetTextField()
{
	const TSharedPtr<SWidget> Shown = Widget.Pin();
	if (!Shown || !FAccessibleTextField::FindEditable(*Shown))
	{
		return nullptr;
	}
	if (!TextField)
	{
		TextField = MakeUnique<FAccessibleTextField>(*this);
	}
	return TextField.Get();
}

QAccessible::Role FAccessibleWidget::FindRole(const SWidget& Widget)
{
	if (dynamic_cast<const SHyperlink*>(&Widget))
	{
		return QAccessible::Link;
	}
	if (dynamic_cast<const SComboBoxBase*>(&Widget))
	{
		return QAccessible::ComboBox;
	}
	if (dynamic_cast<const SComboRow*>(&Widget))
	{
		return QAccessible::ListItem;
	}
	if (dynamic_cast<const SButton*>(&Widget))
	{
		return QAccessible::Button;
	}
	if (FAccessibleTextField::FindEditable(Widget))
	{
		return QAccessible::EditableText;
	}
	return Widget.GetShownText().IsEmpty() ? QAccessible::NoRole : QAccessible::StaticText;
}

QWindow* FAccessibleWidget::window() const
{
	return Host.window()->windowHandle();
}

QAccessibleInterface* FAccessibleWidget::parent() const
{
	return QAccessible::queryAccessibleInterface(&Host);
}

QAccessible::Role FAccessibleWidget::role() const
{
	const TSharedPtr<SWidget> Shown = Widget.Pin();
	return Shown ? FindRole(*Shown) : QAccessible::NoRole;
}

QString FAccessibleWidget::text(QAccessible::Text Kind) const
{
	const TSharedPtr<SWidget> Shown = Widget.Pin();
	if (!Shown)
	{
		return QString();
	}
	const SMultiLineEditableText* Field = FAccessibleTextField::FindEditable(*Shown);
	if (Kind == QAccessible::Value && Field)
	{
		return ToQString(Field->GetPlainText().ToString());
	}
	if (Kind != QAccessible::Name)
	{
		return QString();
	}
	const QString Given = ToQString(Shown->GetAccessibleText().ToString());
	return !Given.isEmpty() ? Given : Field ? ToQString(Shown->GetHint()) : ReadAll(*Shown);
}

bool FAccessibleWidget::HasFocus() const
{
	const TSharedPtr<SWidget> Shown = Widget.Pin();
	// While an open list has the focus as a whole, what its keys act on is one of its rows.
	const SComboRow* Row = dynamic_cast<const SComboRow*>(Shown.Get());
	const TSharedPtr<SWidget> List = Row && Row->IsHighlighted() ? Row->GetParentWidget() : nullptr;
	return Shown && (Shown->HasKeyboardFocus() || (List && List->HasKeyboardFocus()));
}

QRect FAccessibleWidget::rect() const
{
	const TSharedPtr<SWidget> Shown = Widget.Pin();
	if (!Shown)
	{
		return QRect();
	}
	return ToScreen(Shown->GetCachedGeometry().GetRenderBoundingRect());
}

QRect FAccessibleWidget::ToScreen(const FSlateRect& Pixels) const
{
	const double Scale = Host.GetWindow()->GetDPIScaleFactor();
	const QRectF Units(QPointF(Pixels.Left, Pixels.Top) / Scale, QPointF(Pixels.Right, Pixels.Bottom) / Scale);
	return Units.toRect().translated(Host.mapToGlobal(QPoint(0, 0)));
}

FVector2D FAccessibleWidget::FromScreen(const QPoint& Point) const
{
	const QPoint Units = Host.mapFromGlobal(Point);
	return FVector2D(Units.x(), Units.y()) * Host.GetWindow()->GetDPIScaleFactor();
}

QAccessible::State FAccessibleWidget::state() const
{
	QAccessible::State State;
	const TSharedPtr<SWidget> Shown = Widget.Pin();
	if (!Shown)
	{
		State.invalid = true;
		return State;
	}
	const bool bText = dynamic_cast<const SMultiLineEditableText*>(&*Shown) != nullptr;
	State.disabled = !IsReallyEnabled(Shown);
	State.focusable = Shown->SupportsKeyboardFocus();
	State.focused = HasFocus();
	if (const SComboBoxBase* Box = dynamic_cast<const SComboBoxBase*>(&*Shown))
	{
		State.hasPopup = true;
		State.expandable = true;
		State.expanded = Box->IsOpen();
	}
	if (const SComboRow* Row = dynamic_cast<const SComboRow*>(&*Shown))
	{
		State.selectable = true;
		State.selected = Row->IsSelected();
	}
	State.editable = FAccessibleTextField::FindEditable(*Shown) != nullptr;
	State.multiLine = bText;
	State.readOnly = bText && !State.editable;
	State.offscreen = !rect().intersects(QRect(Host.mapToGlobal(QPoint(0, 0)), Host.size()));
	return State;
}

void* FAccessibleWidget::interface_cast(QAccessible::InterfaceType Type)
{
	switch (Type)
	{
	case QAccessible::ActionInterface:
		return static_cast<QAccessibleActionInterface*>(this);
	case QAccessible::TextInterface:
		return static_cast<QAccessibleTextInterface*>(GetTextField());
	default:
		return nullptr;
	}
}

QStringList FAccessibleWidget::actionNames() const
{
	QStringList Names;
	const QAccessible::Role Role = role();
	if (Role == QAccessible::Button || Role == QAccessible::Link || Role == QAccessible::ComboBox || Role == QAccessible::ListItem)
	{
		Names.append(pressAction());
	}
	if (state().focusable)
	{
		Names.append(setFocusAction());
	}
	return Names;
}

void FAccessibleWidget::doAction(const QString& ActionName)
{
	const TSharedPtr<SWidget> Shown = Widget.Pin();
	if (!Shown || state().disabled || !actionNames().contains(ActionName))
	{
		return;
	}
	if (const SComboRow* Row = dynamic_cast<const SComboRow*>(&*Shown))
	{
		Row->Choose();
		return;
	}
	FSlateApplication& Application = FSlateApplication::Get();
	Application.SetKeyboardFocus(Shown, EFocusCause::Navigation);
	if (ActionName == pressAction())
	{
		Application.ProcessKeyDownEvent(Host.GetWindow(), FKeyEvent(EKeys::Enter));
		Application.ProcessKeyUpEvent(Host.GetWindow(), FKeyEvent(EKeys::Enter));
	}
}
