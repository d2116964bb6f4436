// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "OffscreenChat.h"

#include "Chat/ChatItemWidgets/SMarkdownTextbox.h"
#include "Chat/SChatItem.h"
#include "DesktopApplication.h"
#include "Framework/Application/SlateApplication.h"
#include "ProcessorTime.h"
#include "QSlateWidget.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SWindow.h"

namespace
{
constexpr int Width = 1000;
constexpr int Height = 800;
constexpr float ColumnWidth = 700.0f;
constexpr float FrameSeconds = 0.016f;
} // namespace

FOffscreenChat::FOffscreenChat()
{
	// clang-format off
	Window = SNew(SWindow)
	[
		SNew(SBox)
		.HAlign(HAlign_Center)
		[
			SNew(SBox)
			.WidthOverride(ColumnWidth)
			[
				SAssignNew(ScrollBox, SScrollBox)
				+ SScrollBox::Slot()
				[
					SAssignNew(Messages, SVerticalBox)
				]
			]
		]
	];
	// clang-format on
	Host = MakeUnique<QSlateWidget>(FDesktopApplication::Get(), Window.ToSharedRef());
	Host->resize(Width, Height);
	Host->show();
	RunFrame([] {});
}

FOffscreenChat::~FOffscreenChat() = default;

TSharedRef<SChatItem> FOffscreenChat::AddMessage(EChatRole Role, const FString& Text)
{
	const TSharedRef<SChatItem> Item = SNew(SChatItem).Role(Role).Message(Text);
	// clang-format off
	Messages->AddSlot()
		.Padding(0.0f, 10.0f, 0.0f, 10.0f)
		.AutoHeight()
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot()
			.AutoHeight()
			[
				Item
			]
			+ SVerticalBox::Slot()
			.AutoHeight()
			.Padding(0.0f, 10.0f, 0.0f, 0.0f)
		];
	// clang-format on
	ScrollBox->ScrollToEnd();
	return Item;
}

TSharedRef<SMarkdownTextbox> FOffscreenChat::AddTextbox()
{
	const TSharedRef<SMarkdownTextbox> Textbox = SNew(SMarkdownTextbox);
	Messages->AddSlot().AutoHeight()[Textbox];
	return Textbox;
}

FFrameCost FOffscreenChat::RunFrame(TFunction<void()> ChangeContent)
{
	FFrameCost Cost;
	Cost.Content = MeasureProcessorMilliseconds(ChangeContent);
	Cost.Layout = MeasureProcessorMilliseconds([] { FSlateApplication::Get().Tick(FrameSeconds); });
	Cost.Paint = MeasureProcessorMilliseconds([] { FDesktopApplication::Get().GetFrameLoop().OnShowFrame.Broadcast(); });
	return Cost;
}
