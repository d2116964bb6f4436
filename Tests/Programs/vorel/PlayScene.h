// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Play/PlayStage.h"
#include "QSlateWidget.h"
#include "Support/Printers.h"

#include <memory>

class SScrollBox;

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

	bool InvokeMenuEntry(const FString&, FString&) override { return false; }
	QSlateWidget* GetTabContent() override { return bTabOpen ? Host.get() : nullptr; }
	QWidget& GetWindow() override { return *Host; }
	void ResizeTabContent(const FContentSize& Size) override { Host->resize(Size.Width, Size.Height); }
	bool IsSignedIn() const override { return bSignedIn; }
	bool IsRequestUnderWay() const override { return bRequestUnderWay; }
	bool IsPainted() const override;
	int64 GetNumFrames() const override;
	TArray<FString> GetOpenedAddresses() const override { return OpenedAddresses; }

	int32 NumPressed = 0;
	int32 NumPressedToo = 0;
	int32 NumTagged = 0;
	bool bTabOpen = true;
	bool bSignedIn = true;
	bool bRequestUnderWay = false;
	TArray<FString> OpenedAddresses;
	TSharedPtr<SScrollBox> Rows;

private:
	TSharedRef<SWidget> MakeContent();

	std::unique_ptr<QSlateWidget> Host;
};
