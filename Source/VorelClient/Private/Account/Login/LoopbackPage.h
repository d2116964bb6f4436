// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QByteArray>

#include "Account/Login/AuthorizationRequest.h"

// Replies to a browser, whole and ready to be sent. The pages are static: no script, nothing of the request in them.
namespace LoopbackPage
{
QByteArray Make(ERedirect Redirect);
QByteArray MakeNotFound();
QByteArray MakeBadRequest();
} // namespace LoopbackPage
