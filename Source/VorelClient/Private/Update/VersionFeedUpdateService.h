// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/Ticker.h"
#include "Update/VersionFeedNote.h"
#include "VorelUpdateService.h"

class FHttpFetch;
struct FHttpFailure;

struct FVersionFeed
{
	// Of the service, without a slash at the end. Empty: there is nobody to ask.
	FString ServiceUrl{};
	// Where it is remembered; empty: for this run alone.
	FString NoteFile{};
};

// Asks a version feed at most once a day. A newer version is told in a frame after each check; of all else nobody hears but the log.
class UVersionFeedUpdateService final : public UVorelUpdateService
{
public:
	UVersionFeedUpdateService();
	~UVersionFeedUpdateService() override;

	void Initialize(const FVersionFeed& InFeed, const FString& InInstalledVersion);
	// Nothing is told any more.
	void Shutdown();

	// Joined with one that is under way.
	void CheckForUpdates() override;

private:
	void Ask();
	void HandleEnded(const TOptional<FHttpFailure>& Failure, const std::string& Body);
	void TellOfNewer();
	bool IsNewer() const;

	FVersionFeed Feed;
	FString InstalledVersion;
	FVersionFeedNote Note;
	TUniquePtr<FHttpFetch> Fetch;
	FTSTicker::FDelegateHandle Frame;
};
