// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Application/NoticeLog.h"

#include "Misc/OutputDeviceRedirector.h"

#include <QCoreApplication>
#include <QThread>

FNoticeLog::FNoticeLog(TFunction<void(const FString&)> InOnNotice)
	: OnNotice(MoveTemp(InOnNotice))
{
	GLog->AddOutputDevice(this);
}

FNoticeLog::~FNoticeLog()
{
	GLog->RemoveOutputDevice(this);
}

void FNoticeLog::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	const bool bWanted = Category == FName(TEXT("LogDesktop")) || (bStartup && Category == FName(TEXT("LogVorel")));
	// Other threads have no users.
	const bool bGameThread = QThread::currentThread() == QCoreApplication::instance()->thread();
	if (bWanted && bGameThread && Verbosity <= ELogVerbosity::Warning)
	{
		OnNotice(V);
	}
}
