// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ToolMenus.h"
#include "UObject/Package.h"

namespace
{
struct FMenuSystem
{
	bool bUp = false;
	UToolMenus* Menus = nullptr;
	FSimpleMulticastDelegate StartupCallbacks;
};

FMenuSystem& GetSystem()
{
	static FMenuSystem System;
	return System;
}
} // namespace

void UToolMenus::Startup(bool bHasMenus)
{
	FMenuSystem& System = GetSystem();
	check(!System.bUp);
	System.bUp = true;
	if (bHasMenus)
	{
		System.Menus = NewObject<UToolMenus>();
		System.Menus->AddToRoot();
	}
	System.StartupCallbacks.Broadcast();
	System.StartupCallbacks.Clear();
}

void UToolMenus::Shutdown()
{
	FMenuSystem& System = GetSystem();
	check(System.bUp);
	System.bUp = false;
	if (UToolMenus* Menus = std::exchange(System.Menus, nullptr))
	{
		Menus->RemoveFromRoot();
		Menus->MarkAsGarbage();
	}
}

UToolMenus* UToolMenus::Get()
{
	return GetSystem().Menus;
}

void UToolMenus::RegisterStartupCallback(const FSimpleMulticastDelegate::FDelegate& InDelegate)
{
	if (GetSystem().bUp)
	{
		InDelegate.ExecuteIfBound();
	}
	else
	{
		GetSystem().StartupCallbacks.Add(InDelegate);
	}
}

void UToolMenus::UnRegisterStartupCallback(const void* UserPointer)
{
	GetSystem().StartupCallbacks.RemoveAll(UserPointer);
}

void UToolMenus::UnregisterOwner(const void* UserPointer)
{
	UToolMenus* ToolMenus = Get();
	if (ToolMenus == nullptr || UserPointer == nullptr)
	{
		return;
	}
	int32 NumRemoved = 0;
	for (const TObjectPtr<UToolMenu>& Menu : ToolMenus->Menus)
	{
		for (FToolMenuSection& Section : Menu->Sections)
		{
			NumRemoved += Section.Entries.RemoveAll([UserPointer](const FToolMenuEntry& Entry) { return Entry.Owner == UserPointer; });
		}
	}
	if (NumRemoved > 0)
	{
		ToolMenus->OnMenusChanged.Broadcast();
	}
}

UToolMenu* UToolMenus::ExtendMenu(const FName Name)
{
	if (Name.IsNone())
	{
		return nullptr;
	}
	if (UToolMenu* Existing = FindMenu(Name))
	{
		return Existing;
	}
	UToolMenu* Menu = NewObject<UToolMenu>(this);
	Menu->MenuName = Name;
	Menus.Add(Menu);
	OnMenusChanged.Broadcast();
	return Menu;
}

UToolMenu* UToolMenus::FindMenu(const FName Name) const
{
	const TObjectPtr<UToolMenu>* Found =
		Menus.FindByPredicate([Name](const TObjectPtr<UToolMenu>& Menu) { return Menu->MenuName == Name; });
	return Found ? Found->Get() : nullptr;
}

FToolMenuSection& UToolMenu::FindOrAddSection(const FName SectionName)
{
	FToolMenuSection* Existing =
		Sections.FindByPredicate([SectionName](const FToolMenuSection& Section) { return Section.Name == SectionName; });
	return Existing ? *Existing : Sections.Add_GetRef({SectionName, {}});
}
