// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Widgets/Input/SButton.h"

class SComboList;

/** All of a combo box that need not know what an option is; options go by their index here. */
class SComboBoxBase : public SButton
{
public:
	bool IsOpen() const { return List.IsValid(); }

	virtual int32 GetNumOptions() const = 0;

	/** Null widgets are welcome. */
	virtual TSharedRef<SWidget> MakeOptionWidget(int32 Index) = 0;

	/** INDEX_NONE where none is selected, or the selected one is no option any more. */
	virtual int32 FindSelectedOption() const = 0;

	/** Keeps an option in mind, so that it is found again where it has moved to. INDEX_NONE keeps none. */
	virtual void NoteOption(int32 Index) = 0;
	virtual int32 FindNotedOption() const = 0;

	/** The user's choice: closes the list and selects. */
	void ChooseOption(int32 Index, ESelectInfo::Type SelectInfo);

	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

protected:
	/** What is null or unset comes from the style, which must outlive the box. */
	void ConstructButton(const FComboBoxStyle* InStyle, const FButtonStyle* ButtonStyle, const TOptional<FMargin>& ContentPadding,
		const TSharedRef<SWidget>& Content);

	virtual void SelectOption(int32 Index, ESelectInfo::Type SelectInfo) = 0;

	/** Where it is open: the options, or the selection, changed. */
	void RefreshList();

private:
	void Open();
	void Close();
	FReply HandleButtonClicked();
	void HandleListClosed();

	const FComboBoxStyle* Style = nullptr;

	/** Set while it is open. The window owns it, and may go first. */
	TWeakPtr<SComboList> List;
};
