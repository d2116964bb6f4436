// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Logging/LogCategory.h"
#include "Misc/VarArgs.h"

struct FMsg
{
	template <typename... Types>
	static void Logf(const FLogCategoryBase& Category, ELogVerbosity::Type Verbosity, const TCHAR* Format, Types... Arguments)
	{
		LogImpl(Category, Verbosity, Format, {FVarArg(Arguments)...});
	}

private:
	static void LogImpl(const FLogCategoryBase& Category, ELogVerbosity::Type Verbosity, const TCHAR* Format, FVarArgs Arguments);
};

#define DECLARE_LOG_CATEGORY_EXTERN(CategoryName, DefaultVerbosity, CompileTimeVerbosity)                                                  \
	struct FLogCategory##CategoryName : public FLogCategoryBase                                                                            \
	{                                                                                                                                      \
		FLogCategory##CategoryName()                                                                                                       \
			: FLogCategoryBase(TEXT(#CategoryName), ELogVerbosity::DefaultVerbosity)                                                       \
		{                                                                                                                                  \
		}                                                                                                                                  \
		static constexpr ELogVerbosity::Type CompileTime = ELogVerbosity::CompileTimeVerbosity;                                            \
	};                                                                                                                                     \
	extern FLogCategory##CategoryName CategoryName

#define DEFINE_LOG_CATEGORY(CategoryName) FLogCategory##CategoryName CategoryName

// A category of one source file.
#define DEFINE_LOG_CATEGORY_STATIC(CategoryName, DefaultVerbosity, CompileTimeVerbosity)                                                   \
	static struct FLogCategory##CategoryName : public FLogCategoryBase                                                                     \
	{                                                                                                                                      \
		FLogCategory##CategoryName()                                                                                                       \
			: FLogCategoryBase(TEXT(#CategoryName), ELogVerbosity::DefaultVerbosity)                                                       \
		{                                                                                                                                  \
		}                                                                                                                                  \
		static constexpr ELogVerbosity::Type CompileTime = ELogVerbosity::CompileTimeVerbosity;                                            \
	} CategoryName

#define UE_LOG_ACTIVE(CategoryName, Verbosity)                                                                                             \
	(ELogVerbosity::Verbosity <= CategoryName.CompileTime && !CategoryName.IsSuppressed(ELogVerbosity::Verbosity))

// The arguments are evaluated only where the message is wanted.
#define UE_LOG(CategoryName, Verbosity, Format, ...)                                                                                       \
	(UE_LOG_ACTIVE(CategoryName, Verbosity) ? ::FMsg::Logf(CategoryName, ELogVerbosity::Verbosity, Format __VA_OPT__(, ) __VA_ARGS__)      \
											: void())

#define UE_CLOG(Condition, CategoryName, Verbosity, Format, ...)                                                                           \
	((Condition) ? UE_LOG(CategoryName, Verbosity, Format __VA_OPT__(, ) __VA_ARGS__) : void())

DECLARE_LOG_CATEGORY_EXTERN(LogTemp, Log, All);
