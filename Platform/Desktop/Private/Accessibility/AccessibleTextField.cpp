// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Accessibility/AccessibleTextField.h"

#include "Accessibility/AccessibleWidget.h"
#include "QtConversion.h"
#include "Widgets/Text/SMultiLineEditableText.h"

#include <algorithm>
#include <utility>

namespace
{
int ToOffset(const QString& Text, const FTextLocation& Location)
{
	qsizetype Begin = 0;
	for (int32 Line = 0; Line < Location.GetLineIndex(); ++Line)
	{
		Begin = Text.indexOf(u'\n', Begin) + 1;
	}
	return static_cast<int>(Begin) + Location.GetOffset();
}

/** `Offset` is at most the text's length. */
FTextLocation ToLocation(const QString& Text, int Offset)
{
	const QStringView Before = QStringView(Text).left(Offset);
	return FTextLocation(static_cast<int32>(Before.count(u'\n')), Offset - static_cast<int32>(Before.lastIndexOf(u'\n')) - 1);
}
} // namespace

const SMultiLineEditableText* FAccessibleTextField::FindEditable(const SWidget& Widget)
{
	const SMultiLineEditableText* Text = dynamic_cast<const SMultiLineEditableText*>(&Widget);
	return Text && !Text->IsTextReadOnly() ? Text : nullptr;
}

FAccessibleTextField::FState FAccessibleTextField::Read() const
{
	FState State;
	const TSharedPtr<SWidget> Widget = Owner.GetWidget().Pin();
	if (const SMultiLineEditableText* Field = Widget ? FindEditable(*Widget) : nullptr)
	{
		State.Text = ToQString(Field->GetPlainText().ToString());
		State.Caret = ToOffset(State.Text, Field->GetCursorLocation());
		const FTextSelection Selection = Field->GetSelection();
		if (!Selection.IsEmpty())
		{
			State.SelectionBegin = ToOffset(State.Text, Selection.GetBeginning());
			State.SelectionEnd = ToOffset(State.Text, Selection.GetEnd());
		}
	}
	return State;
}

void FAccessibleTextField::AnnounceChanges()
{
	const FState Before = std::exchange(Known, Read());
	if (Known.Text != Before.Text)
	{
		AnnounceText(Before.Text, Known.Text);
	}
	if (Known.Caret != Before.Caret)
	{
		Announce(QAccessibleTextCursorEvent(&Owner, Known.Caret));
	}
	if (Known.SelectionBegin != Before.SelectionBegin || Known.SelectionEnd != Before.SelectionEnd)
	{
		Announce(QAccessibleTextSelectionEvent(&Owner, Known.SelectionBegin, Known.SelectionEnd));
	}
}

void FAccessibleTextField::AnnounceText(const QString& Old, const QString& New) const
{
	// What both begin and end with is left out, but never half of a surrogate pair.
	const qsizetype Shorter = std::min(Old.size(), New.size());
	qsizetype Begin = std::mismatch(Old.begin(), Old.begin() + Shorter, New.begin()).first - Old.begin();
	Begin -= Begin > 0 && Old[Begin - 1].isHighSurrogate() ? 1 : 0;
	qsizetype End = std::mismatch(Old.rbegin(), Old.rbegin() + (Shorter - Begin), New.rbegin()).first - Old.rbegin();
	End -= End > 0 && Old[Old.size() - End].isLowSurrogate() ? 1 : 0;

	const QString Removed = Old.mid(Begin, Old.size() - End - Begin);
	const QString Inserted = New.mid(Begin, New.size() - End - Begin);
	const int Position = static_cast<int>(Begin);
	if (Removed.isEmpty())
	{
		Announce(QAccessibleTextInsertEvent(&Owner, Position, Inserted));
	}
	else if (Inserted.isEmpty())
	{
		Announce(QAccessibleTextRemoveEvent(&Owner, Position, Removed));
	}
	else
	{
		Announce(QAccessibleTextUpdateEvent(&Owner, Position, Removed, Inserted));
	}
}

void FAccessibleTextField::Announce(QAccessibleTextCursorEvent&& Event) const
{
	Event.setCursorPosition(Known.Caret);
	QAccessible::updateAccessibility(&Event);
}

void FAccessibleTextField::selection(int SelectionIndex, int* Begin, int* End) const
{
	const FState State = Read();
	const bool bExists = SelectionIndex == 0 && State.SelectionBegin >= 0;
	*Begin = bExists ? State.SelectionBegin : 0;
	*End = bExists ? State.SelectionEnd : 0;
}

QString FAccessibleTextField::text(int Begin, int End) const
{
	const QString Text = Read().Text;
	const qsizetype From = std::clamp<qsizetype>(Begin, 0, Text.size());
	return Text.mid(From, std::clamp<qsizetype>(End, From, Text.size()) - From);
}

QRect FAccessibleTextField::characterRect(int Offset) const
{
	const QString Text = Read().Text;
	const TSharedPtr<SWidget> Widget = Owner.GetWidget().Pin();
	const SMultiLineEditableText* Field = Widget ? FindEditable(*Widget) : nullptr;
	const bool bExists = Field && Offset >= 0 && Offset <= Text.size();
	return bExists ? Owner.ToScreen(Field->GetCharacterArea(ToLocation(Text, Offset))) : QRect();
}

int FAccessibleTextField::offsetAtPoint(const QPoint& Point) const
{
	const TSharedPtr<SWidget> Widget = Owner.GetWidget().Pin();
	const SMultiLineEditableText* Field = Widget ? FindEditable(*Widget) : nullptr;
	const bool bInside = Field && Owner.rect().contains(Point);
	return bInside ? ToOffset(Read().Text, Field->GetCharacterAt(Owner.FromScreen(Point))) : -1;
}

QString FAccessibleTextField::attributes(int, int* Begin, int* End) const
{
	// The whole text looks the same.
	*Begin = 0;
	*End = characterCount();
	return QString();
}
