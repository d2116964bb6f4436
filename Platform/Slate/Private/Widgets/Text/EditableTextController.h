// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CaretBlinker.h"
#include "EditableText.h"
#include "Framework/Commands/InputChord.h"
#include "Framework/SlateDelegates.h"
#include "Input/Reply.h"
#include "Misc/Attribute.h"
#include "TextScroller.h"

class FCharacterEvent;
class FKeyEvent;
class SWidget;

/** How a text may be edited, and who is told of it. */
struct FEditableTextOptions
{
	TAttribute<bool> IsReadOnly;
	bool bAllowMultiLine = true;
	bool bClearSelectionOnFocusLoss = true;
	/** With it Enter makes a new line, without it Enter commits; with none Enter always makes one. */
	EModifierKey::Type ModifierForNewLine = EModifierKey::None;
	FOnTextChanged OnTextChanged;
	FOnTextCommitted OnTextCommitted;
};

/** Brings the keyboard, the clipboard, input methods and the focus to a text, and keeps its caret in view. */
class FEditableTextController
{
public:
	/** The owner outlives the controller. */
	FEditableTextController(SWidget& InOwner, const TSharedRef<FSlateTextLayout>& InLayout,
		const TSharedRef<ITextLayoutMarshaller>& InMarshaller, FEditableTextOptions InOptions);

	/** A read-only text keeps its selection. The owner is laid out anew by the caller. */
	void SetText(const FString& NewText);
	bool IsReadOnly() const { return Options.IsReadOnly.Get(); }

	FReply OnKeyDown(const FKeyEvent& Event);
	FReply OnKeyChar(const FCharacterEvent& Event);
	FReply OnTextComposition(const FTextCompositionEvent& Event);
	void OnFocusReceived();
	void OnFocusLost();

	/** The view or the text got another size, in device pixels. */
	void SetSizes(const FVector2D& View, const FVector2D& Content);
	bool ScrollBy(const FVector2D& Delta);

	/** In device pixels from the view's top left corner. */
	FTextCaret GetCaretAt(const FVector2D& Position) const;
	FTextLocation GetCharacterAt(const FVector2D& Position) const;
	void PlaceCaret(const FTextCaret& Caret, bool bExtendSelection);
	void Select(const FTextLocation& From, const FTextLocation& To);

	/** In units. */
	static constexpr float CaretWidth = 1.0f;

	FEditableText& GetText() { return Text; }
	const FEditableText& GetText() const { return Text; }
	const FTextScroller& GetScroller() const { return Scroller; }
	bool IsCaretShown() const { return Blinker.IsShown(); }
	/** What the caret covers, in device pixels of the text. */
	FSlateRect GetCaretArea() const;

private:
	/** Each returns false for a key that it has no use for. */
	bool HandleMoveKey(const FKeyEvent& Event);
	bool HandleCommandKey(const FKeyEvent& Event);
	bool HandleEditKey(const FKeyEvent& Event);
	bool HandleEnter(const FKeyEvent& Event);
	bool HandleEscape();

	bool Copy();
	bool Cut();
	bool Paste();
	void Commit(ETextCommit::Type Type);
	/** Runs an edit, unless the text is read-only, and tells what came of it. */
	bool Edit(const TFunction<void()>& Change);
	/** What is being composed is given up when the caret goes elsewhere. */
	void CancelComposition();
	void OnCaretMoved();
	void OnScrolled();

	SWidget& Owner;
	FEditableTextOptions Options;
	FEditableText Text;
	FTextScroller Scroller;
	FCaretBlinker Blinker;
	/** The first half of a character that comes in two events. */
	TCHAR PendingSurrogate = 0;
	bool bBringCaretIntoView = false;
};
