// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Misc/FileHelper.h"

#include <filesystem>
#include <sstream>

struct FCodeSample
{
	FString Path;
	FString Text;
};

/** The C++ sources and headers below the folders, which colons separate. Headers that only include another one are passed over. */
inline TArray<FCodeSample> ReadCodeSamples(const std::string& Folders)
{
	constexpr int32 ShortestLength = 100;
	TArray<FCodeSample> Samples;
	std::istringstream Stream(Folders);
	for (std::string Folder; std::getline(Stream, Folder, ':');)
	{
		for (const auto& Entry : std::filesystem::recursive_directory_iterator(Folder))
		{
			const std::string Extension = Entry.path().extension().string();
			const bool bCode = Extension.empty() || Extension == ".h" || Extension == ".cc" || Extension == ".cpp" || Extension == ".tcc";
			FCodeSample Sample{FString(Entry.path().c_str()), FString()};
			if (Entry.is_regular_file() && bCode && FFileHelper::LoadFileToString(Sample.Text, *Sample.Path) &&
				Sample.Text.Len() > ShortestLength)
			{
				Samples.Add(MoveTemp(Sample));
			}
		}
	}
	return Samples;
}
