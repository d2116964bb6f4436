// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "TextDocument.h"
#include "TextEditHistory.h"
#include "TextMovement.h"

struct FTextCompositionEvent;

/** Text with a caret and a selection: what keys, mouse, clipboard and input methods do to it. Knows no widget. */
class FEditableText
{
public:
	FEditableText(const TSharedRef<FSlateTextLayout>& InLayout, const TSharedRef<ITextLayoutMarshaller>& InMarshaller);

	void SetAllowMultiLine(bool bInAllowMultiLine) { bAllowMultiLine = bInAllowMultiLine; }

	/** Cannot be undone. The selection stays as far as the new text reaches if `bKeepSelection`; else the caret goes to the end. */
	void SetText(const FString& Text, bool bKeepSelection);
	/** Without what is being composed. */
	FString GetText() const;
	bool IsEmpty() const { return Document.GetEnd() == FTextLocation(); }
	/** Grows with each change by the user. */
	uint32 GetRevision() const { return Revision; }

	const FTextCaret& GetCaret() const { return Caret; }
	const FTextLocation& GetAnchor() const { return Anchor; }
	FTextSelection GetSelection() const { return FTextSelection(Anchor, Caret.Location); }
	bool HasSelection() const { return Anchor != Caret.Location; }
	FString GetSelectedText() const { return Document.GetText(GetSelection()); }

	void PlaceCaret(const FTextCaret& NewCaret, bool bExtendSelection);
	void Select(const FTextLocation& From, const FTextLocation& To);
	void SelectAll() { Select(FTextLocation(), Document.GetEnd()); }
	void ClearSelection() { Select(Caret.Location, Caret.Location); }
	/** `PageHeight` is in device pixels. */
	void Move(ETextMove Direction, bool bExtendSelection, float PageHeight);
	FTextRange FindWordAt(const FTextLocation& Location) const;

	/** In the place of the selection. */
	void Insert(FStringView Text, FTextEdit::EKind Kind);
	/** The selection; if there is none, all up to where the move leads. */
	void Delete(ETextMove Direction);
	void Undo();
	void Redo();

	void Compose(const FTextCompositionEvent& Event);
	void CancelComposition();
	bool IsComposing() const { return !Composition.IsEmpty(); }
	const FTextSelection& GetComposition() const { return Composition; }

	FSlateTextLayout& GetLayout() const { return Document.GetLayout(); }

private:
	void ReplaceSelection(FStringView Text, FTextEdit::EKind Kind);
	FTextCaret FindTarget(ETextMove Direction, float PageHeight);

	FTextDocument Document;
	FTextEditHistory History;
	FTextCaret Caret;
	/** The other end of the selection. */
	FTextLocation Anchor;
	/** Where vertical moves aim, in device pixels. */
	TOptional<float> Column;
	/** What an input method shows in the document and has not committed; empty if nothing. */
	FTextSelection Composition;
	uint32 Revision = 0;
	bool bAllowMultiLine = true;
};
