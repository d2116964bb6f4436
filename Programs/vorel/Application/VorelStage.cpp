// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Application/VorelStage.h"

#include "AuthenticationService.h"
#include "ChatService.h"
#include "DesktopApplication.h"
#include "Frame/EditorFrame.h"
#include "VorelClient.h"

bool FVorelStage::InvokeMenuEntry(const FString& Label, FString& OutProblem)
{
	return Frame.InvokeToolsEntry(Label, OutProblem);
}

QSlateWidget* FVorelStage::GetTabContent()
{
	return Frame.GetTabContent();
}

QWidget& FVorelStage::GetWindow()
{
	return Frame;
}

void FVorelStage::ResizeTabContent(const FContentSize& Size)
{
	Frame.ResizeTabContent(Size);
}

bool FVorelStage::IsSignedIn() const
{
	return FVorelClient::Get().GetAuthService()->IsAuthenticated();
}

bool FVorelStage::IsRequestUnderWay() const
{
	return FVorelClient::Get().GetChatService()->bIsProcessingRequest;
}

bool FVorelStage::IsPainted() const
{
	return Desktop.IsIdle();
}

int64 FVorelStage::GetNumFrames() const
{
	return Desktop.GetFrameLoop().GetStatistics().NumFrames;
}

TArray<FString> FVorelStage::GetOpenedAddresses() const
{
	return Desktop.GetOpenedAddresses();
}
