// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QDateTime>

#include "Http/HttpFetch.h"
#include "Http/QtText.h"

#include "Http/JsonText.h"
#include "LogVorel.h"
#include "SemanticVersion.h"
#include "Update/VersionFeedUpdateService.h"

static constexpr FRequestLimits Limits{10.0, 30.0, 30.0};

UVersionFeedUpdateService::UVersionFeedUpdateService() = default;

UVersionFeedUpdateService::~UVersionFeedUpdateService()
{
	Shutdown();
}

void UVersionFeedUpdateService::Initialize(const FVersionFeed& InFeed, const FString& InInstalledVersion)
{
	Feed = InFeed;
	Feed.Name = Feed.Name.IsEmpty() ? Feed.ServiceUrl : Feed.Name;
	InstalledVersion = InInstalledVersion;
	Note = Feed.NoteFile.IsEmpty() ? FVersionFeedNote() : FVersionFeedNote::Load(Feed.NoteFile);
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
	const FVersionFeedNote OnDisk = Feed.NoteFile.IsEmpty() ? Note : FVersionFeedNote::Load(Feed.NoteFile);
	const int64 Now = QDateTime::currentSecsSinceEpoch();
	Note = OnDisk.IsOfToday(Feed.Name, Now) ? OnDisk : Note;
	if (!Note.IsOfToday(Feed.Name, Now))
	{
		Note = {Feed.Name, Now, Note.Feed == Feed.Name ? Note.Version : FString()};
		Ask();
	}
	else if (IsNewer())
	{
		Frame = FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateUObject(this, &UVersionFeedUpdateService::Tell));
	}
}

void UVersionFeedUpdateService::Ask()
{
	Note.Save(Feed.NoteFile);
	FHttpRequest Request;
	Request.Url = QUrl(ToQString(Feed.ServiceUrl / TEXT("v1/version")));
	Fetch = MakeUnique<FHttpFetch>(::MoveTemp(Request), Limits,
		[this](const TOptional<FHttpFailure>& Failure, const std::string& Body) { HandleEnded(Failure, Body); });
}

void UVersionFeedUpdateService::HandleEnded(const TOptional<FHttpFailure>& Failure, const std::string& Body)
{
	const FString Version = Failure ? FString() : ToString(GetMember(ParseJson(Body), "version"));
	if (FSemanticVersion::Parse(Version))
	{
		Note.Version = Version;
		Note.Save(Feed.NoteFile);
	}
	else
	{
		UE_LOG(LogVorel, Log, TEXT("The version feed %s"), Failure ? TEXT("could not be read") : TEXT("names no version"));
	}
	Fetch.Reset();
	if (IsNewer())
	{
		Frame = FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateUObject(this, &UVersionFeedUpdateService::Tell));
	}
}

bool UVersionFeedUpdateService::Tell(float DeltaTime)
{
	Frame.Reset();
	OnLatestVersionReceived.Broadcast(Note.Version);
	return false;
}

bool UVersionFeedUpdateService::IsNewer() const
{
	const TOptional<FSemanticVersion> Known = FSemanticVersion::Parse(Note.Version);
	const TOptional<FSemanticVersion> Installed = FSemanticVersion::Parse(InstalledVersion);
	return Known && Installed && Known->IsNewerThan(*Installed);
}
