// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Play/PlayScript.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class IPlayStage;

// Takes one step of a play file after the other, between the events of the program.
class FPlayRunner : public QObject
{
public:
	// Problem is empty after the last step, else "FILE:LINE: what went wrong". Called once, and never by Start itself.
	using FOnEnded = TFunction<void(const FString& Problem)>;

	FPlayRunner(IPlayStage& InStage, FPlayScript InScript, FOnEnded InOnEnded);

	void Start();

private:
	void Poll();
	bool IsSettled() const;
	void BeginStep();
	void End(const FString& Problem);

	IPlayStage& Stage;
	FPlayScript Script;
	FOnEnded OnEnded;
	QTimer Timer;
	int32 Next = 0;
	bool bStepBegan = false;
	int64 FramesBefore = 0;
	QElapsedTimer StepClock;
};
