// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Delegates/DelegateSignature.h"
#include "Delegates/MulticastDelegate.h"

// The names are those of the engine; a parameter list may carry comments that name its parameters.

#define DECLARE_DELEGATE(Name) using Name = TDelegate<void()>
#define DECLARE_DELEGATE_OneParam(Name, ...) using Name = TDelegate<void(__VA_ARGS__)>
#define DECLARE_DELEGATE_TwoParams(Name, ...) using Name = TDelegate<void(__VA_ARGS__)>
#define DECLARE_DELEGATE_ThreeParams(Name, ...) using Name = TDelegate<void(__VA_ARGS__)>

#define DECLARE_DELEGATE_RetVal(Ret, Name) using Name = TDelegate<Ret()>
#define DECLARE_DELEGATE_RetVal_OneParam(Ret, Name, ...) using Name = TDelegate<Ret(__VA_ARGS__)>
#define DECLARE_DELEGATE_RetVal_TwoParams(Ret, Name, ...) using Name = TDelegate<Ret(__VA_ARGS__)>
#define DECLARE_DELEGATE_RetVal_ThreeParams(Ret, Name, ...) using Name = TDelegate<Ret(__VA_ARGS__)>

#define DECLARE_MULTICAST_DELEGATE(Name) using Name = TMulticastDelegate<void()>
#define DECLARE_MULTICAST_DELEGATE_OneParam(Name, ...) using Name = TMulticastDelegate<void(__VA_ARGS__)>
#define DECLARE_MULTICAST_DELEGATE_TwoParams(Name, ...) using Name = TMulticastDelegate<void(__VA_ARGS__)>
#define DECLARE_MULTICAST_DELEGATE_ThreeParams(Name, ...) using Name = TMulticastDelegate<void(__VA_ARGS__)>

DECLARE_DELEGATE(FSimpleDelegate);
DECLARE_MULTICAST_DELEGATE(FSimpleMulticastDelegate);
