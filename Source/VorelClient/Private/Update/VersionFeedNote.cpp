// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QFile>
#include <QSaveFile>

#include "Http/QtText.h"

#include "Http/JsonText.h"
#include "Update/VersionFeedNote.h"

static constexpr qint64 MaxBytes = 64 * 1024;
static constexpr int64 SecondsOfADay = 24 * 60 * 60;

FVersionFeedNote FVersionFeedNote::Load(const FString& File)
{
	QFile Disk(ToQString(File));
	const QByteArray Bytes = Disk.open(QIODevice::ReadOnly) ? Disk.read(MaxBytes) : QByteArray();
	const FJson Root = ParseJson(std::string_view(Bytes.constData(), static_cast<std::size_t>(Bytes.size())));
	const FJson& AskedAt = GetMember(Root, "askedAt");
	return {
		ToString(GetMember(Root, "feed")), AskedAt.is_number_integer() ? AskedAt.get<int64>() : 0, ToString(GetMember(Root, "version"))};
}

void FVersionFeedNote::Save(const FString& File) const
{
	if (File.IsEmpty())
	{
		return;
	}
	const std::string Text = FJson{{"feed", ToUtf8(Feed)}, {"askedAt", AskedAt}, {"version", ToUtf8(Version)}}.dump();
	QSaveFile Disk(ToQString(File));
	if (Disk.open(QIODevice::WriteOnly) && Disk.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) &&
		Disk.write(Text.data(), static_cast<qint64>(Text.size())) >= 0)
	{
		Disk.commit();
	}
}

bool FVersionFeedNote::IsOfToday(const FString& InFeed, int64 Now) const
{
	return Feed == InFeed && AskedAt >= 0 && AskedAt <= Now && Now - AskedAt < SecondsOfADay;
}
