// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/ITextLayoutMarshaller.h"

class FBaseTextLayoutMarshaller : public ITextLayoutMarshaller
{
public:
	virtual bool RequiresLiveUpdate() const override { return false; }
	virtual void MakeDirty() override { bIsDirty = true; }
	virtual void ClearDirty() override { bIsDirty = false; }
	virtual bool IsDirty() const override { return bIsDirty; }

private:
	bool bIsDirty = true;
};
