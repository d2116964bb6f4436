// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QUrl>

#include "Http/HttpFailure.h"
#include "Http/RequestLimits.h"
#include <string_view>

class QNetworkReply;

struct FHttpRequest
{
	QUrl Url;
	// Empty: GET, else POST.
	QByteArray Body;
	QByteArray BodyType = "application/json";
	QByteArray Accept = "application/json";
	// Sent to the origin of the address alone.
	QByteArray BearerToken;
};

// One exchange with a server on the game thread's event loop, with separate limits for connecting, the first byte and the pauses between
// bytes. Redirects are followed within the origin alone, so that keys, tokens and what is posted never leave it. Destroying the call hangs
// up in silence.
class FHttpCall final : public QObject
{
public:
	FHttpCall(FHttpRequest InRequest, const FRequestLimits& InLimits);
	~FHttpCall() override;

	// OnBody gets the bytes of a successful reply as they come; it may let go of the call and hang up, not destroy it. OnEnded comes last,
	// with the reason when the reply was no success or is not complete; it may destroy the call.
	TFunction<void(std::string_view)> OnBody;
	TFunction<void(const TOptional<FHttpFailure>& Failure)> OnEnded;

	void Start();

	// The caller has all it wants. The server gets a moment to end its reply, so that a complete exchange doesn't look like a hang-up.
	void LetGo();
	void HangUp();

	FHttpFailure MakeFailure(EHttpFailure Kind) const;

private:
	void StartLimit(EHttpPhase InPhase);
	void HandleBytes();
	void HandleFinished();
	void HandleLimit();
	bool FollowRedirect(int32 Status);
	void End(const TOptional<FHttpFailure>& Failure);

	bool IsSuccess() const;
	int32 GetStatus() const;
	FHttpFailure MakeRefusal() const;
	EHttpFailure GetNetworkFailure() const;
	FString GetHost() const;

	FHttpRequest Request;
	FRequestLimits Limits;
	// Null once ended. Goes with the application too, which ends what is still open.
	QPointer<QNetworkReply> Reply;
	QTimer Limit;
	EHttpPhase Phase = EHttpPhase::Connecting;
	// What the server wrote to a refusal, up to a limit.
	QByteArray Refusal;
	int32 Redirects = 0;
};
