// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Application/SlateApplication.h"

#include "Framework/Application/SlateFocus.h"
#include "Framework/Application/SlateFrame.h"
#include "Framework/Application/SlateMouse.h"
#include "Widgets/SWindow.h"

namespace
{
TSharedPtr<FSlateApplication> CurrentApplication;
}

TSharedRef<FSlateApplication> FSlateApplication::Create(const TSharedRef<ISlateDesktop>& InDesktop)
{
	checkf(!CurrentApplication.IsValid(), TEXT("There is an application already"));
	CurrentApplication = MakeShareable(new FSlateApplication(InDesktop));
	return CurrentApplication.ToSharedRef();
}

void FSlateApplication::Shutdown()
{
	CurrentApplication.Reset();
}

bool FSlateApplication::IsInitialized()
{
	return CurrentApplication.IsValid();
}

FSlateApplication& FSlateApplication::Get()
{
	checkf(CurrentApplication.IsValid(), TEXT("There is no application yet"));
	return *CurrentApplication;
}

FSlateApplication::FSlateApplication(const TSharedRef<ISlateDesktop>& InDesktop)
	: Desktop(InDesktop)
	, Renderer(InDesktop->GetTextShaper())
	, Focus(MakeUnique<FSlateFocus>(*this))
	, Mouse(MakeUnique<FSlateMouse>(*this))
	, Frame(MakeUnique<FSlateFrame>())
{
}

FSlateApplication::~FSlateApplication() = default;

void FSlateApplication::AddWindow(const TSharedRef<SWindow>& Window)
{
	Windows.AddUnique(Window);
	RequestFrame();
}

void FSlateApplication::RemoveWindow(const TSharedRef<SWindow>& Window)
{
	Mouse->Leave(*Window);
	Windows.Remove(Window);
}

TSharedPtr<SWindow> FSlateApplication::FindWidgetWindow(const TSharedRef<const SWidget>& Widget) const
{
	TSharedPtr<SWidget> Top = ConstCastSharedRef<SWidget>(Widget);
	while (const TSharedPtr<SWidget> Around = Top->GetParentWidget())
	{
		Top = Around;
	}
	const TSharedRef<SWindow>* Window = Windows.FindByPredicate([&Top](const TSharedRef<SWindow>& Each) { return Top == Each; });
	return Window != nullptr ? TSharedPtr<SWindow>(*Window) : nullptr;
}

void FSlateApplication::Tick(float DeltaTime)
{
	CurrentTime += DeltaTime;
	bFrameRequested = false;
	bInFrame = true;
	Frame->Run(TArray<TSharedRef<SWindow>>(Windows), CurrentTime, DeltaTime);
	Focus->Refresh();
	Mouse->Refresh();
	bInFrame = false;
	if (Frame->IsAnotherNeeded(Windows))
	{
		RequestFrame();
	}
}

void FSlateApplication::RequestFrame()
{
	if (!bInFrame && !bFrameRequested)
	{
		bFrameRequested = true;
		Desktop->RequestFrame();
	}
}

const FSlateFrameStats& FSlateApplication::GetFrameStats() const
{
	return FSlateFrame::GetStats();
}

uint64 FSlateApplication::GetFrameNumber() const
{
	return Frame->GetFrameNumber();
}
