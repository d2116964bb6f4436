// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

struct FCommandLine;
struct FPlayScript;
class QApplication;

// The program from its window to its end. Returns the exit status; what goes wrong is told on stderr. Script may be null.
int RunVorel(QApplication& Application, const FCommandLine& Line, const FPlayScript* Script);
