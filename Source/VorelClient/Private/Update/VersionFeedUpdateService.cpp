// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QDateTime>

#include "Http/HttpFetch.h"
#include "Http/QtText.h"

#include "Http/BackgroundRequest.h"
#include "Http/JsonText.h"
#include "LogVorel.h"
#include "SemanticVersion.h"
#include "Update/VersionFeedUpdateService.h"

// Longer than any that was ever given, and short enough for the note to be read again.
static constexpr int32 MaxVersionLength = 256;

UVersionFeedUpdateService::UVersionFeedUpdateService() = default;

UVersionFeedUpdateService::~UVersionFeedUpdateService()
{
	Shutdown();
}

void UVersionFeedUpdateService::Initialize(const FVersionFeed& InFeed, const FString& InInstalledVersion)
{
	Feed = InFeed;
	InstalledVersion = InInstalledVersion;
	Note = FVersionFeedNote::Load(Feed.NoteFile);
}

void UVersionFeedUpdateService::Shutdown()
{
	Fetch.Reset();
	FTSTicker::RemoveTicker(Frame);
	Frame.Reset();
}

void UVersionFeedUpdateService::CheckForUpdates()
{
	if (Fetch || Frame.IsValid() || Feed.ServiceUrl.IsEmpty())
	{
		return;
	}
	// Another program may have asked meanwhile.
	const FVersionFeedNote OnDisk = FVersionFeedNote::Load(Feed.NoteFile);
	const int64 Now = QDateTime::currentSecsSinceEpoch();
	Note = OnDisk.IsOfToday(Feed.ServiceUrl, Now) ? OnDisk : Note;
	if (!Note.IsOfToday(Feed.ServiceUrl, Now))
	{
		Note = {Feed.ServiceUrl, Now, Note.Feed == Feed.ServiceUrl ? Note.Version : FString()};
		Ask();
	}
	else
	{
		TellOfNewer();
	}
}

void UVersionFeedUpdateService::Ask()
{
	Note.Save(Feed.NoteFile);
	FHttpRequest Request;
	Request.Url = QUrl(ToQString(Feed.ServiceUrl / TEXT("v1/version")));
	Fetch = MakeUnique<FHttpFetch>(::MoveTemp(Request), BackgroundRequest::Limits,
		[this](const TOptional<FHttpFailure>& Failure, const std::string& Body) { HandleEnded(Failure, Body); });
}

void UVersionFeedUpdateService::HandleEnded(const TOptional<FHttpFailure>& Failure, const std::string& Body)
{
	const FString Version = Failure ? FString() : ToString(GetMember(ParseJson(Body), "version"));
	if (Version.Len() <= MaxVersionLength && FSemanticVersion::Parse(Version))
	{
		Note.Version = Version;
		Note.Save(Feed.NoteFile);
	}
	else
	{
		UE_LOG(LogVorel, Log, TEXT("The version feed could not be read: %s"),
			Failure ? *BackgroundRequest::Describe(*Failure) : TEXT("it names no version"));
	}
	Fetch.Reset();
	TellOfNewer();
}

void UVersionFeedUpdateService::TellOfNewer()
{
	if (IsNewer())
	{
		Frame = FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateWeakLambda(this,
			[this](float)
			{
				Frame.Reset();
				OnLatestVersionReceived.Broadcast(Note.Version);
				return false;
			}));
	}
}

bool UVersionFeedUpdateService::IsNewer() const
{
	const TOptional<FSemanticVersion> Known = FSemanticVersion::Parse(Note.Version);
	const TOptional<FSemanticVersion> Installed = FSemanticVersion::Parse(InstalledVersion);
	return Known && Installed && Known->IsNewerThan(*Installed);
}
