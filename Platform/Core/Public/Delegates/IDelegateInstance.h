// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Templates/TypeHash.h"

// Names one binding, so that it can be removed again.
class FDelegateHandle
{
public:
	enum EGenerateNewHandleType
	{
		GenerateNewHandle
	};

	FDelegateHandle() = default;
	explicit FDelegateHandle(EGenerateNewHandleType)
		: ID(GenerateNewID())
	{
	}

	bool IsValid() const { return ID != 0; }
	void Reset() { ID = 0; }

	friend bool operator==(const FDelegateHandle&, const FDelegateHandle&) = default;
	friend uint32 GetTypeHash(const FDelegateHandle& Handle) { return ::GetTypeHash(Handle.ID); }

private:
	static uint64 GenerateNewID();

	uint64 ID = 0;
};

// One binding. Shared by the copies of a delegate, and kept while it runs, so a handler may rebind or destroy the delegate it was called
// by.
template <typename Ret, typename... ParamTypes>
class IDelegateInstance
{
public:
	virtual ~IDelegateInstance() = default;

	// False once an object that is held weakly has gone.
	virtual bool IsSafeToExecute() const = 0;
	virtual const void* GetUserObject() const = 0;
	virtual Ret Execute(ParamTypes... Params) const = 0;
};
