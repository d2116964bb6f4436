// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "InputCoreTypes.h"

const FKey EKeys::Invalid;

const FKey EKeys::LeftMouseButton(TEXT("LeftMouseButton"));
const FKey EKeys::MiddleMouseButton(TEXT("MiddleMouseButton"));
const FKey EKeys::RightMouseButton(TEXT("RightMouseButton"));

const FKey EKeys::BackSpace(TEXT("BackSpace"));
const FKey EKeys::Delete(TEXT("Delete"));
const FKey EKeys::Insert(TEXT("Insert"));
const FKey EKeys::Enter(TEXT("Enter"));
const FKey EKeys::Escape(TEXT("Escape"));
const FKey EKeys::SpaceBar(TEXT("SpaceBar"));
const FKey EKeys::Tab(TEXT("Tab"));

const FKey EKeys::Left(TEXT("Left"));
const FKey EKeys::Right(TEXT("Right"));
const FKey EKeys::Up(TEXT("Up"));
const FKey EKeys::Down(TEXT("Down"));
const FKey EKeys::Home(TEXT("Home"));
const FKey EKeys::End(TEXT("End"));
const FKey EKeys::PageUp(TEXT("PageUp"));
const FKey EKeys::PageDown(TEXT("PageDown"));

const FKey EKeys::A(TEXT("A"));
const FKey EKeys::C(TEXT("C"));
const FKey EKeys::V(TEXT("V"));
const FKey EKeys::X(TEXT("X"));
const FKey EKeys::Y(TEXT("Y"));
const FKey EKeys::Z(TEXT("Z"));
