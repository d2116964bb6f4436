// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Play/PlayStage.h"

class FDesktopApplication;
class FEditorFrame;

// The running program, as a play file acts on it.
class FVorelStage final : public IPlayStage
{
public:
	FVorelStage(FDesktopApplication& InDesktop, FEditorFrame& InFrame)
		: Desktop(InDesktop)
		, Frame(InFrame)
	{
	}

	bool InvokeMenuEntry(const FString& Label, FString& OutProblem) override;
	QSlateWidget* GetTabContent() override;
	QWidget& GetWindow() override;
	void ResizeTabContent(const FContentSize& Size) override;
	bool IsSignedIn() const override;
	bool IsRequestUnderWay() const override;
	bool IsPainted() const override;
	int64 GetNumFrames() const override;
	TArray<FString> GetOpenedAddresses() const override;

private:
	FDesktopApplication& Desktop;
	FEditorFrame& Frame;
};
