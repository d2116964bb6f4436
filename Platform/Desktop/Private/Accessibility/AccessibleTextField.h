// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <QAccessible>

class FAccessibleWidget;
class SMultiLineEditableText;
class SWidget;

/** The text that can be edited in a widget, with caret and selection, as assistive technology sees it. Offsets count UTF-16 units. */
class FAccessibleTextField : public QAccessibleTextInterface
{
public:
	/** The owner outlives the field. */
	explicit FAccessibleTextField(FAccessibleWidget& InOwner)
		: Owner(InOwner)
	{
	}

	/** Null if the widget is no text, or one that is only read. */
	static const SMultiLineEditableText* FindEditable(const SWidget& Widget);

	/** Takes what there is now as known. */
	void Remember() { Known = Read(); }
	/** Tells what is not known yet. */
	void AnnounceChanges();

	void selection(int SelectionIndex, int* Begin, int* End) const override;
	int selectionCount() const override { return Read().SelectionBegin < 0 ? 0 : 1; }
	int cursorPosition() const override { return Read().Caret; }
	QString text(int Begin, int End) const override;
	int characterCount() const override { return static_cast<int>(Read().Text.size()); }
	QRect characterRect(int Offset) const override;
	int offsetAtPoint(const QPoint& Point) const override;
	QString attributes(int Offset, int* Begin, int* End) const override;

	// The widget leaves caret, selection and scrolling to the user's hand.
	void addSelection(int, int) override {}
	void removeSelection(int) override {}
	void setSelection(int, int, int) override {}
	void setCursorPosition(int) override {}
	void scrollToSubstring(int, int) override {}

private:
	struct FState
	{
		QString Text;
		int Caret = 0;
		/** Both are negative if nothing is selected. */
		int SelectionBegin = -1;
		int SelectionEnd = -1;
	};

	/** Empty once the widget is gone. */
	FState Read() const;
	void AnnounceText(const QString& Old, const QString& New) const;
	void Announce(QAccessibleTextCursorEvent&& Event) const;

	FAccessibleWidget& Owner;
	FState Known;
};
