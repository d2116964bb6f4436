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
	const bool bWarns = Category == FName(TEXT("LogDesktop")) || (bStartup && Category == FName(TEXT("LogVorel")));
	const bool bForUsers = Category == FName(TEXT("LogVorelStore")) || Category == FName(TEXT("LogVorelAccount"));
	// Other threads have no users.
	const bool bGameThread = QThread::currentThread() == QCoreApplication::instance()->thread();
	if (bGameThread && ((bForUsers && Verbosity <= ELogVerbosity::Display) || (bWarns && Verbosity <= ELogVerbosity::Warning)))
	{
		OnNotice(V);
	}
}
