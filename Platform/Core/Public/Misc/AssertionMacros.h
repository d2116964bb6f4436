// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreTypes.h"
#include "Misc/VarArgs.h"

// What a broken assertion does: one line on stderr and in the log, then the process stops. An ensure goes on after its line.
struct FDebug
{
	[[noreturn]] static void CheckFailed(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line);

	template <typename... Types>
	[[noreturn]] static void CheckFailed(
		const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Format, Types... Arguments)
	{
		CheckFailedImpl(Expression, File, Line, Format, {FVarArg(Arguments)...});
	}

	// False, so that an ensure passes on the value of its expression.
	static bool EnsureFailed(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line);

	template <typename... Types>
	static bool EnsureFailed(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Format, Types... Arguments)
	{
		return EnsureFailedImpl(Expression, File, Line, Format, {FVarArg(Arguments)...});
	}

private:
	[[noreturn]] static void CheckFailedImpl(
		const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Format, FVarArgs Arguments);
	static bool EnsureFailedImpl(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Format, FVarArgs Arguments);
};

// For mistakes of our own; switched on in every build.
#define check(Expression) (static_cast<bool>(Expression) ? void() : ::FDebug::CheckFailed(#Expression, __FILE__, __LINE__))
#define checkf(Expression, Format, ...)                                                                                                    \
	(static_cast<bool>(Expression) ? void() : ::FDebug::CheckFailed(#Expression, __FILE__, __LINE__, Format __VA_OPT__(, ) __VA_ARGS__))
#define checkNoEntry() ::FDebug::CheckFailed("Enclosing block should never be called", __FILE__, __LINE__)
#define verify(Expression) check(Expression)
#define ensure(Expression) (static_cast<bool>(Expression) || ::FDebug::EnsureFailed(#Expression, __FILE__, __LINE__))
#define ensureMsgf(Expression, Format, ...)                                                                                                \
	(static_cast<bool>(Expression) || ::FDebug::EnsureFailed(#Expression, __FILE__, __LINE__, Format __VA_OPT__(, ) __VA_ARGS__))
