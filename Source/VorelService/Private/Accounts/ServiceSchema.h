// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

struct FStoreSchema;

// Of the file of accounts, logins and credits.
const FStoreSchema& GetServiceSchema();
