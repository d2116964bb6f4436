// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/InputChord.h"

enum class EUserInterfaceActionType : uint8
{
	None,
	Button,
	ToggleButton,
	RadioButton,
	Check,
	CollapsedButton
};

// A group of commands.
class FBindingContext
{
public:
	FBindingContext(const FName InContextName, const FText& InContextDesc, const FName InContextParent, const FName InStyleSetName)
		: ContextName(InContextName)
		, ContextParent(InContextParent)
		, ContextDesc(InContextDesc)
		, StyleSetName(InStyleSetName)
	{
	}

	virtual ~FBindingContext() = default;

	const FName& GetContextName() const { return ContextName; }
	const FName& GetContextParent() const { return ContextParent; }
	const FText& GetContextDesc() const { return ContextDesc; }
	const FName& GetStyleSetName() const { return StyleSetName; }

private:
	FName ContextName;
	FName ContextParent;
	FText ContextDesc;
	FName StyleSetName;
};

// What a command is called and looks like; a command list says what it does.
class FUICommandInfo
{
public:
	const FName& GetCommandName() const { return CommandName; }
	const FName& GetBindingContext() const { return BindingContext; }
	const FText& GetLabel() const { return Label; }
	const FText& GetDescription() const { return Description; }
	// The style that holds its icon: the context's name and the command's, with a dot between.
	const FName& GetIconStyleName() const { return IconStyleName; }
	EUserInterfaceActionType GetUserInterfaceType() const { return UserInterfaceType; }
	const FInputChord& GetDefaultChord() const { return DefaultChord; }
	const FInputChord& GetAlternateDefaultChord() const { return AlternateDefaultChord; }

private:
	friend void MakeUICommand_InternalUseOnly(FBindingContext* This, TSharedPtr<FUICommandInfo>& OutCommand, const TCHAR* InSubNamespace,
		const TCHAR* InCommandName, const TCHAR* InCommandNameUnderscoreTooltip, const ANSICHAR* DotCommandName, const TCHAR* FriendlyName,
		const TCHAR* InDescription, const EUserInterfaceActionType CommandType, const FInputChord& InDefaultChord,
		const FInputChord& InAlternateDefaultChord);

	FName CommandName;
	FName BindingContext;
	FName IconStyleName;
	FText Label;
	FText Description;
	EUserInterfaceActionType UserInterfaceType = EUserInterfaceActionType::None;
	FInputChord DefaultChord;
	FInputChord AlternateDefaultChord;
};

// Label and description are localised: the label under the command's name, the description under the name of its tooltip.
void MakeUICommand_InternalUseOnly(FBindingContext* This, TSharedPtr<FUICommandInfo>& OutCommand, const TCHAR* InSubNamespace,
	const TCHAR* InCommandName, const TCHAR* InCommandNameUnderscoreTooltip, const ANSICHAR* DotCommandName, const TCHAR* FriendlyName,
	const TCHAR* InDescription, const EUserInterfaceActionType CommandType, const FInputChord& InDefaultChord,
	const FInputChord& InAlternateDefaultChord = FInputChord());
