// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Play/PlayStage.h"
#include "QSlateWidget.h"
#include "Support/Printers.h"
#include "Support/TempFolder.h"

#include <memory>

class SScrollBox;
class STextBlock;

// A window with a few widgets, for play files to act on: the title "Title", the buttons "Press me" and "Press me too", which count, a
// button without text that is tagged "Tagged", an input box with the hint "Write here", a note that is collapsed, and a list of "Row 0" to
// "Row 99".
class FPlayScene : public IPlayStage
{
public:
	FPlayScene();
	~FPlayScene() override;

	// Plays to the end; gives what went wrong, or nothing.
	FString Play(const FString& Text);

	// As one names it in a play file.
	FString GetFile(const TCHAR* Name) const { return Folder.GetPath() / Name; }
	FString ReadFile(const TCHAR* Name) const;

	bool InvokeMenuEntry(const FString& Label, FString& OutProblem) override;
	QSlateWidget* GetTabContent() override { return bTabOpen ? Host.get() : nullptr; }
	QWidget& GetWindow() override { return *Host; }
	void ResizeTabContent(const FContentSize& Size) override { Host->resize(Size.Width, Size.Height); }
	bool IsSignedIn() const override { return bSignedIn; }
	bool IsRequestUnderWay() const override { return bRequestUnderWay; }
	bool IsPainted() const override;
	int64 GetNumFrames() const override;
	TArray<FString> GetOpenedAddresses() const override { return {TEXT("https://host/a"), TEXT("https://host/b")}; }

	int32 NumPressed = 0;
	int32 NumPressedToo = 0;
	int32 NumTagged = 0;
	FString Invoked;
	bool bTabOpen = true;
	bool bSignedIn = true;
	bool bRequestUnderWay = false;
	TSharedPtr<STextBlock> Title;
	TSharedPtr<SScrollBox> Rows;

private:
	TSharedRef<SWidget> MakeContent();

	FTempFolder Folder;
	std::unique_ptr<QSlateWidget> Host;
};
