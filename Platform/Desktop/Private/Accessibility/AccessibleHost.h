// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/Array.h"
#include "Templates/SharedPointer.h"

#include <QAccessibleWidget>
#include <unordered_map>

class FAccessibleWidget;
class QSlateWidget;
class SWidget;

/**
 * What assistive technology sees of a host: in reading order, and without the containers around them, the texts, buttons, links and fields
 * that are not hidden.
 */
class FAccessibleHost : public QAccessibleWidget
{
public:
	explicit FAccessibleHost(QSlateWidget* InHost);
	~FAccessibleHost() override;

	/** A factory for QAccessible. */
	static QAccessibleInterface* Make(const QString& ClassName, QObject* Object);

	/** Tells what changed since the last call: the focus, or the text that has it. Costs nothing while nobody listens. */
	static void Announce(QSlateWidget& Host);

	int childCount() const override;
	QAccessibleInterface* child(int Index) const override;
	int indexOfChild(const QAccessibleInterface* Child) const override;
	QAccessibleInterface* childAt(int X, int Y) const override;
	QAccessibleInterface* focusChild() const override;

private:
	struct FEntry
	{
		TWeakPtr<SWidget> Widget;
		/** Owned by QAccessible's cache under this id. */
		FAccessibleWidget* Interface = nullptr;
		QAccessible::Id Id = 0;
	};

	void AnnounceFocused();
	/** Finds the widgets anew once a frame has run since. */
	void Update() const;
	/** The texts in an item of a list are its name. */
	void Collect(const TSharedRef<SWidget>& Widget, bool bInItem = false) const;
	FAccessibleWidget* FindFocused() const;
	FAccessibleWidget* FindOrAdd(const TSharedRef<SWidget>& Widget) const;
	void DropDead() const;

	QSlateWidget& Host;
	mutable std::unordered_map<const SWidget*, FEntry> Entries;
	mutable TArray<FAccessibleWidget*> Children;
	mutable int64 FrameOfChildren = -1;
	mutable TWeakPtr<SWidget> AnnouncedFocus;
};
