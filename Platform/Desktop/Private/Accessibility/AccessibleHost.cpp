// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Accessibility/AccessibleHost.h"

#include "Accessibility/AccessibleTextField.h"
#include "Accessibility/AccessibleWidget.h"
#include "DesktopApplication.h"
#include "Framework/Application/SlateApplication.h"
#include "QSlateWidget.h"
#include "Widgets/SWindow.h"

namespace
{
/** Whether anybody listens: the platform says so, and so may others through QAccessible::setActive. */
class FListening : public QAccessible::ActivationObserver
{
public:
	FListening() { QAccessible::installActivationObserver(this); }
	~FListening() override { QAccessible::removeActivationObserver(this); }

	void accessibilityActiveChanged(bool bActive) override { bIsActive = bActive; }

	bool bIsActive = QAccessible::isActive();
};
} // namespace

FAccessibleHost::FAccessibleHost(QSlateWidget* InHost)
	: QAccessibleWidget(InHost, QAccessible::Client)
	, Host(*InHost)
{
}

FAccessibleHost::~FAccessibleHost()
{
	for (const auto& [Widget, Entry] : Entries)
	{
		QAccessible::deleteAccessibleInterface(Entry.Id);
	}
}

QAccessibleInterface* FAccessibleHost::Make(const QString&, QObject* Object)
{
	QSlateWidget* Host = dynamic_cast<QSlateWidget*>(Object);
	return Host ? new FAccessibleHost(Host) : nullptr;
}

void FAccessibleHost::Announce(QSlateWidget& Host)
{
	static FListening Listening;
	if (!Listening.bIsActive)
	{
		return;
	}
	if (FAccessibleHost* Self = dynamic_cast<FAccessibleHost*>(QAccessible::queryAccessibleInterface(&Host)))
	{
		Self->AnnounceFocused();
	}
}

void FAccessibleHost::AnnounceFocused()
{
	// The frame that has just run is not yet counted.
	FrameOfChildren = -1;
	FAccessibleWidget* Focused = FindFocused();
	const TWeakPtr<SWidget> Widget = Focused ? Focused->GetWidget() : TWeakPtr<SWidget>();
	const bool bMoved = !(AnnouncedFocus == Widget);
	AnnouncedFocus = Widget;
	if (Focused && bMoved)
	{
		QAccessibleEvent Event(Focused, QAccessible::Focus);
		QAccessible::updateAccessibility(&Event);
	}
	FAccessibleTextField* Field = Focused ? Focused->GetTextField() : nullptr;
	if (Field && bMoved)
	{
		Field->Remember();
	}
	else if (Field)
	{
		Field->AnnounceChanges();
	}
}

void FAccessibleHost::Update() const
{
	const int64 Frame = FDesktopApplication::Get().GetFrameLoop().GetStatistics().NumFrames;
	if (FrameOfChildren == Frame)
	{
		return;
	}
	FrameOfChildren = Frame;
	Children.Empty();
	Collect(Host.GetWindow());
	DropDead();
}

void FAccessibleHost::Collect(const TSharedRef<SWidget>& Widget, bool bInItem) const
{
	if (!Widget->GetVisibility().IsVisible())
	{
		return;
	}
	const QAccessible::Role Role = FAccessibleWidget::FindRole(*Widget);
	if (Role != QAccessible::NoRole && !(bInItem && Role == QAccessible::StaticText))
	{
		Children.Add(FindOrAdd(Widget));
	}
	if (Role == QAccessible::Button || Role == QAccessible::Link || Role == QAccessible::ComboBox)
	{
		// What it holds is its name.
		return;
	}
	FChildren& Inner = *Widget->GetChildren();
	for (int32 Index = 0; Index < Inner.Num(); ++Index)
	{
		Collect(Inner.GetChildAt(Index), bInItem || Role == QAccessible::ListItem);
	}
}

FAccessibleWidget* FAccessibleHost::FindOrAdd(const TSharedRef<SWidget>& Widget) const
{
	FEntry& Entry = Entries[&*Widget];
	// Another widget may have come to stand at the same address.
	if (!Entry.Widget.IsValid())
	{
		if (Entry.Id)
		{
			QAccessible::deleteAccessibleInterface(Entry.Id);
		}
		FAccessibleWidget* Interface = new FAccessibleWidget(Host, Widget);
		Entry = {Widget, Interface, QAccessible::registerAccessibleInterface(Interface)};
	}
	return Entry.Interface;
}

void FAccessibleHost::DropDead() const
{
	std::erase_if(Entries,
		[](const auto& Each)
		{
			const bool bDead = !Each.second.Widget.IsValid();
			if (bDead)
			{
				QAccessible::deleteAccessibleInterface(Each.second.Id);
			}
			return bDead;
		});
}

int FAccessibleHost::childCount() const
{
	Update();
	return Children.Num();
}

QAccessibleInterface* FAccessibleHost::child(int Index) const
{
	Update();
	return Children.IsValidIndex(Index) ? Children[Index] : nullptr;
}

int FAccessibleHost::indexOfChild(const QAccessibleInterface* Child) const
{
	Update();
	return Children.IndexOfByPredicate([Child](const FAccessibleWidget* Each) { return Each == Child; });
}

QAccessibleInterface* FAccessibleHost::childAt(int X, int Y) const
{
	Update();
	// The last one is drawn uppermost.
	for (int32 Index = Children.Num() - 1; Index >= 0; --Index)
	{
		if (Children[Index]->rect().contains(X, Y))
		{
			return Children[Index];
		}
	}
	return nullptr;
}

QAccessibleInterface* FAccessibleHost::focusChild() const
{
	return FindFocused();
}

FAccessibleWidget* FAccessibleHost::FindFocused() const
{
	Update();
	FAccessibleWidget* const* Focused = Children.FindByPredicate([](const FAccessibleWidget* Child) { return Child->HasFocus(); });
	return Focused ? *Focused : nullptr;
}
