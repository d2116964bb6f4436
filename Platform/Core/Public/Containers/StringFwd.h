// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

class FString;
class FStringView;
