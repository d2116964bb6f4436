// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "DesktopApplication.h"

#include "Accessibility/AccessibleHost.h"
#include "DesktopLog.h"
#include "Editor.h"
#include "Fonts/DesktopTextShaper.h"
#include "Framework/Application/SlateApplication.h"
#include "HAL/PlatformHooks.h"
#include "QSlateWidget.h"
#include "QtConversion.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QUrl>

static TSharedPtr<FDesktopApplication> Instance;

// Qt warns of each font without a script while it looks for one that has it, and of much else that is no trouble here.
static void LogQtMessage(QtMsgType Type, const QMessageLogContext&, const QString& Message)
{
	// It repeats the address that no browser could be started for, whose query may be nobody else's business.
	const FString Shown = ToFString(Message.section(QLatin1Char('?'), 0, 0));
	const bool bSevere = Type == QtCriticalMsg || Type == QtFatalMsg;
	UE_CLOG(bSevere, LogDesktop, Error, TEXT("%s"), *Shown);
	UE_CLOG(!bSevere, LogDesktop, Verbose, TEXT("%s"), *Shown);
}

TSharedRef<FDesktopApplication> FDesktopApplication::Create(EBrowserMode BrowserMode)
{
	check(!Instance);
	UEditorEngine::Startup();
	Instance = MakeShared<FDesktopApplication>(BrowserMode);
	FSlateApplication::Create(Instance.ToSharedRef());
	return Instance.ToSharedRef();
}

void FDesktopApplication::Shutdown()
{
	FSlateApplication::Shutdown();
	Instance.Reset();
	UEditorEngine::Shutdown();
}

FDesktopApplication& FDesktopApplication::Get()
{
	check(Instance);
	return *Instance;
}

FDesktopApplication::FDesktopApplication(EBrowserMode InBrowserMode)
	: BrowserMode(InBrowserMode)
	, TextShaper(MakeDesktopTextShaper())
{
	qInstallMessageHandler(LogQtMessage);
	QAccessible::installFactory(&FAccessibleHost::Make);
	FPlatformHooks::Get().LaunchURL = [this](const FString& Address, FString& OutError)
	{
		return OpenAddress(Address, OutError);
	};
	FPlatformHooks::Get().ClipboardCopy = [this](const FString& Text)
	{
		SetClipboardText(Text);
	};
}

FDesktopApplication::~FDesktopApplication()
{
	FPlatformHooks::Get() = FPlatformHooks();
	qInstallMessageHandler(nullptr);
	QAccessible::removeFactory(&FAccessibleHost::Make);
}

void FDesktopApplication::SetActiveHost(QSlateWidget* Host)
{
	if (ActiveHost != Host)
	{
		ActiveHost = Host;
		// The focus may have been set before any input came.
		ActiveHost->SetTextInputArea(TextInputArea);
	}
}

void FDesktopApplication::ForgetHost(const QSlateWidget* Host)
{
	ActiveHost = ActiveHost == Host ? nullptr : ActiveHost;
}

FString FDesktopApplication::GetClipboardText()
{
	return ToFString(QGuiApplication::clipboard()->text());
}

void FDesktopApplication::SetClipboardText(const FString& Text)
{
	QGuiApplication::clipboard()->setText(ToQString(Text));
}

bool FDesktopApplication::OpenAddress(const FString& Address, FString& OutError)
{
	const QUrl Url(ToQString(Address), QUrl::StrictMode);
	const bool bWeb = (Url.scheme() == QLatin1String("https") || Url.scheme() == QLatin1String("http")) && !Url.host().isEmpty();
	if (!Url.isValid() || !(bWeb || Url.scheme() == QLatin1String("mailto")))
	{
		OutError = TEXT("only web and mail addresses are opened");
		return false;
	}
	OpenedAddresses.Add(Address);
	const bool bOpened = BrowserMode == EBrowserMode::Record || QDesktopServices::openUrl(Url);
	OutError = bOpened ? TEXT("") : TEXT("no browser could be started");
	return bOpened;
}

void FDesktopApplication::SetCursor(EMouseCursor::Type Cursor)
{
	if (ActiveHost)
	{
		ActiveHost->ShowCursor(Cursor);
	}
}

void FDesktopApplication::SetTextInputArea(bool bEnabled, const FSlateRect& CaretRect)
{
	TextInputArea = bEnabled ? TOptional<FSlateRect>(CaretRect) : TOptional<FSlateRect>();
	if (ActiveHost)
	{
		ActiveHost->SetTextInputArea(TextInputArea);
	}
}
