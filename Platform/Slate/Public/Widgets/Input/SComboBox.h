// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Widgets/Input/SComboBoxBase.h"
#include "Widgets/SNullWidget.h"

/**
 * A button that drops down a list to choose from. OptionType is a pointer; a null selection is none. The array of options belongs to the
 * caller, must outlive the box, and is read anew by RefreshOptions. The box shows its content, not what is selected.
 */
template <typename OptionType>
class SComboBox : public SComboBoxBase
{
public:
	using FOnGenerateWidget = TDelegate<TSharedRef<SWidget>(OptionType)>;
	using FOnSelectionChanged = TDelegate<void(OptionType, ESelectInfo::Type)>;

	SLATE_BEGIN_ARGS(SComboBox) {}
	SLATE_ARGUMENT(const TArray<OptionType>*, OptionsSource)
	SLATE_EVENT(FOnGenerateWidget, OnGenerateWidget)
	SLATE_EVENT(FOnSelectionChanged, OnSelectionChanged)
	SLATE_STYLE_ARGUMENT(FComboBoxStyle, ComboBoxStyle)
	SLATE_STYLE_ARGUMENT(FButtonStyle, ButtonStyle)
	SLATE_ARGUMENT(TOptional<FMargin>, ContentPadding)
	SLATE_ARGUMENT(OptionType, InitiallySelectedItem)
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs)
	{
		OptionsSource = InArgs._OptionsSource;
		OnGenerateWidget = InArgs._OnGenerateWidget;
		OnSelectionChanged = InArgs._OnSelectionChanged;
		SelectedItem = InArgs._InitiallySelectedItem;
		ConstructButton(InArgs._ComboBoxStyle, InArgs._ButtonStyle, InArgs._ContentPadding, InArgs._Content.Widget);
	}

	/** The options changed. What is selected stays, also where it is no option any more. */
	void RefreshOptions() { RefreshList(); }

	/** A change is reported; the same item again is not. */
	void SetSelectedItem(OptionType InSelectedItem, ESelectInfo::Type InSelectInfo = ESelectInfo::Direct)
	{
		if (!(SelectedItem == InSelectedItem))
		{
			SelectedItem = InSelectedItem;
			RefreshList();
			OnSelectionChanged.ExecuteIfBound(InSelectedItem, InSelectInfo);
		}
	}

	OptionType GetSelectedItem() const { return SelectedItem; }

	virtual int32 GetNumOptions() const override { return OptionsSource != nullptr ? OptionsSource->Num() : 0; }
	virtual TSharedRef<SWidget> MakeOptionWidget(int32 Index) override
	{
		// The options may have become fewer without a word.
		const bool bHasOption = OptionsSource != nullptr && OptionsSource->IsValidIndex(Index);
		return bHasOption && OnGenerateWidget.IsBound() ? OnGenerateWidget.Execute((*OptionsSource)[Index]) : SNullWidget::NullWidget;
	}
	virtual int32 FindSelectedOption() const override
	{
		return OptionsSource != nullptr && SelectedItem ? OptionsSource->Find(SelectedItem) : INDEX_NONE;
	}
	virtual void NoteOption(int32 Index) override
	{
		const bool bHasOption = OptionsSource != nullptr && OptionsSource->IsValidIndex(Index);
		NotedItem = bHasOption ? TOptional<OptionType>((*OptionsSource)[Index]) : NullOpt;
	}
	virtual int32 FindNotedOption() const override
	{
		return OptionsSource != nullptr && NotedItem.IsSet() ? OptionsSource->Find(*NotedItem) : INDEX_NONE;
	}

protected:
	virtual void SelectOption(int32 Index, ESelectInfo::Type SelectInfo) override
	{
		if (OptionsSource != nullptr && OptionsSource->IsValidIndex(Index))
		{
			SetSelectedItem((*OptionsSource)[Index], SelectInfo);
		}
	}

private:
	const TArray<OptionType>* OptionsSource = nullptr;
	FOnGenerateWidget OnGenerateWidget;
	FOnSelectionChanged OnSelectionChanged;
	OptionType SelectedItem = OptionType();
	TOptional<OptionType> NotedItem;
};
