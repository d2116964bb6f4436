// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <cstdint>
#include <string>

// Proof that a form was filled in on a page of this very service, and not long ago: no other web page can read it there.
class FFormTokens
{
public:
	FFormTokens();

	// Purpose: what the form does and for whom.
	std::string Make(const std::string& Purpose, std::int64_t Now) const;
	bool IsGood(const std::string& Token, const std::string& Purpose, std::int64_t Now) const;

private:
	const std::string Key;
};
