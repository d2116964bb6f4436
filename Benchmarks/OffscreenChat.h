// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Message.h"

class QSlateWidget;
class SChatItem;
class SMarkdownTextbox;
class SScrollBox;
class SVerticalBox;
class SWindow;

// What one frame cost, in milliseconds of processor time, so that other work on the machine does not count. A frame runs on one thread.
struct FFrameCost
{
	double Content = 0.0;
	double Layout = 0.0;
	double Paint = 0.0;

	double GetTotal() const { return Content + Layout + Paint; }
};

// A column of messages as wide as the chat's, in an offscreen window whose frames are run by hand.
class FOffscreenChat
{
public:
	FOffscreenChat();
	~FOffscreenChat();

	// As the chat adds a message, with its room below.
	TSharedRef<SChatItem> AddMessage(EChatRole Role, const FString& Text);
	TSharedRef<SMarkdownTextbox> AddTextbox();

	// Changes the content, lays out, and paints what has changed.
	FFrameCost RunFrame(TFunction<void()> ChangeContent);

	SScrollBox& GetScrollBox() { return *ScrollBox; }

private:
	TSharedPtr<SScrollBox> ScrollBox;
	TSharedPtr<SVerticalBox> Messages;
	TSharedPtr<SWindow> Window;
	TUniquePtr<QSlateWidget> Host;
};
