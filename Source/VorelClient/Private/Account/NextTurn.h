// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QTimer>

#include "CoreMinimal.h"

// Calls back in the event loop's next turn, or after some seconds; not at all once it is gone.
class FNextTurn final
{
public:
	explicit FNextTurn(TFunction<void()> InOnTurn)
		: OnTurn(::MoveTemp(InOnTurn))
	{
		Timer.setSingleShot(true);
		QObject::connect(&Timer, &QTimer::timeout, &Timer,
			[this]
			{
				// Destroys this, perhaps.
				const TFunction<void()> Handler = OnTurn;
				Handler();
			});
	}

	// Anew where it was asked for already.
	void Ask(double Seconds = 0.0) { Timer.start(FMath::CeilToInt(Seconds * 1000.0)); }

private:
	TFunction<void()> OnTurn;
	QTimer Timer;
};
