// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Math/Vector2D.h"
#include "Templates/SharedPointer.h"
#include "Templates/UniquePtr.h"

#include <QAccessible>

class FAccessibleTextField;
class QSlateWidget;
class SWidget;
struct FSlateRect;

/** One widget as assistive technology sees it. It becomes invalid with its widget. */
class FAccessibleWidget : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
	FAccessibleWidget(QSlateWidget& InHost, const TSharedRef<SWidget>& InWidget);
	~FAccessibleWidget() override;

	/** NoRole for a widget that only holds others. */
	static QAccessible::Role FindRole(const SWidget& Widget);

	bool isValid() const override { return Widget.IsValid(); }
	QObject* object() const override { return nullptr; }
	QWindow* window() const override;
	QAccessibleInterface* parent() const override;
	int childCount() const override { return 0; }
	QAccessibleInterface* child(int) const override { return nullptr; }
	int indexOfChild(const QAccessibleInterface*) const override { return -1; }
	QAccessibleInterface* childAt(int, int) const override { return nullptr; }
	QString text(QAccessible::Text Kind) const override;
	void setText(QAccessible::Text, const QString&) override {}
	QRect rect() const override;
	QAccessible::Role role() const override;
	QAccessible::State state() const override;
	void* interface_cast(QAccessible::InterfaceType Type) override;

	QStringList actionNames() const override;
	void doAction(const QString& ActionName) override;
	QStringList keyBindingsForAction(const QString&) const override { return {}; }

	bool HasFocus() const;
	const TWeakPtr<SWidget>& GetWidget() const { return Widget; }
	/** Null unless its text can be edited. */
	FAccessibleTextField* GetTextField();

	/** Between absolute device pixels and the units of the screen. */
	QRect ToScreen(const FSlateRect& Pixels) const;
	FVector2D FromScreen(const QPoint& Point) const;

private:
	QSlateWidget& Host;
	TWeakPtr<SWidget> Widget;
	TUniquePtr<FAccessibleTextField> TextField;
};
