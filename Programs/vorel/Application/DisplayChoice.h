// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

struct FCommandLine;

// Everything that has to be settled before Qt opens a display.
namespace DisplayChoice
{
// Whether the surroundings name a display.
bool IsNamed();

void Choose(const FCommandLine& Line);

// While one lives, a display that can't be opened ends the program with a line for the user and status 2, where Qt would abort.
class FOpeningScope
{
public:
	FOpeningScope();
	~FOpeningScope();
	FOpeningScope(const FOpeningScope&) = delete;
	FOpeningScope& operator=(const FOpeningScope&) = delete;
};
} // namespace DisplayChoice
