// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QCoreApplication>
#include <QIODevice>
#include <QNetworkAccessManager>
#include <QNetworkReply>

#include "Http/HttpCall.h"

#include "Http/HttpNetwork.h"
#include "Http/QtText.h"

namespace
{
constexpr int32 MaxRedirects = 5;
constexpr qsizetype MaxRefusalBytes = 64 * 1024;
constexpr int32 MaxGoodbyeMilliseconds = 2000;

// A body that can be read once. The network library sends a request again when the server hangs up without a reply; a question must not be
// asked, and paid for, twice.
class FOnceReadable final : public QIODevice
{
public:
	explicit FOnceReadable(const QByteArray& InBytes)
		: Bytes(InBytes)
	{
		open(QIODevice::ReadOnly | QIODevice::Unbuffered);
	}

	bool isSequential() const override { return true; }
	bool reset() override { return false; }
	bool atEnd() const override { return Position == Bytes.size(); }
	qint64 bytesAvailable() const override { return Bytes.size() - Position; }

protected:
	qint64 readData(char* Data, qint64 MaxSize) override
	{
		const qint64 Size = qMin(MaxSize, bytesAvailable());
		std::copy_n(Bytes.constData() + Position, Size, Data);
		Position += Size;
		return Size > 0 ? Size : -1;
	}

	qint64 writeData(const char*, qint64) override { return -1; }

private:
	const QByteArray Bytes;
	qint64 Position = 0;
};

bool IsSameOrigin(const QUrl& A, const QUrl& B)
{
	const auto GetPort = [](const QUrl& Url)
	{
		return Url.port(Url.scheme() == QLatin1String("https") ? 443 : 80);
	};
	return A.scheme() == B.scheme() && A.host() == B.host() && GetPort(A) == GetPort(B);
}

QNetworkRequest MakeNetworkRequest(const FHttpRequest& Request)
{
	QNetworkRequest Made(Request.Url);
	Made.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
	Made.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
	Made.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
	Made.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
	Made.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
	Made.setRawHeader("Accept", Request.Accept);
	// A compressing proxy would hold pieces back.
	Made.setRawHeader("Accept-Encoding", "identity");
	Made.setRawHeader("User-Agent", "VorelAI");
	if (!Request.BearerToken.isEmpty())
	{
		Made.setRawHeader("Authorization", "Bearer " + Request.BearerToken);
	}
	return Made;
}

QNetworkReply* Post(QNetworkAccessManager& Network, const FHttpRequest& Request)
{
	QNetworkRequest Made = MakeNetworkRequest(Request);
	Made.setHeader(QNetworkRequest::ContentTypeHeader, Request.BodyType);
	Made.setHeader(QNetworkRequest::ContentLengthHeader, Request.Body.size());
	Made.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
	auto* const Body = new FOnceReadable(Request.Body);
	QNetworkReply* const Reply = Network.post(Made, Body);
	Body->setParent(Reply);
	return Reply;
}
} // namespace

FHttpCall::FHttpCall(FHttpRequest InRequest, const FRequestLimits& InLimits)
	: Request(::MoveTemp(InRequest))
	, Limits(InLimits)
{
	Limit.setSingleShot(true);
	connect(&Limit, &QTimer::timeout, this, [this] { HandleLimit(); });
}

FHttpCall::~FHttpCall()
{
	HangUp();
}

void FHttpCall::Start()
{
	// One for each call, so that no connection is used twice: a server may close an idle one just when the next question goes out.
	QNetworkAccessManager* const Network = MakeNetwork(QCoreApplication::instance());
	Reply = Request.Body.isEmpty() ? Network->get(MakeNetworkRequest(Request)) : Post(*Network, Request);
	connect(Reply, &QNetworkReply::requestSent, this, [this] { StartLimit(EHttpPhase::WaitingForFirstByte); });
	connect(Reply, &QNetworkReply::readyRead, this, [this] { HandleBytes(); });
	connect(Reply, &QNetworkReply::finished, this, [this] { HandleFinished(); });
	StartLimit(EHttpPhase::Connecting);
}

void FHttpCall::LetGo()
{
	Limit.stop();
	if (QNetworkReply* const Leaving = Reply)
	{
		Reply = nullptr;
		Leaving->disconnect(this);
		connect(Leaving, &QNetworkReply::finished, Leaving->manager(), &QObject::deleteLater);
		QTimer::singleShot(MaxGoodbyeMilliseconds, Leaving, &QNetworkReply::abort);
	}
}

void FHttpCall::HangUp()
{
	Limit.stop();
	if (QNetworkReply* const Leaving = Reply)
	{
		Reply = nullptr;
		Leaving->disconnect(this);
		Leaving->abort();
		Leaving->manager()->deleteLater();
	}
}

void FHttpCall::StartLimit(EHttpPhase InPhase)
{
	// The library tells late that a request went out: the reply may have begun.
	if (InPhase == EHttpPhase::WaitingForFirstByte && Phase == EHttpPhase::Receiving)
	{
		return;
	}
	Phase = InPhase;
	const double Seconds = Phase == EHttpPhase::Connecting            ? Limits.Connect
						   : Phase == EHttpPhase::WaitingForFirstByte ? Limits.FirstByte
																	  : Limits.BetweenBytes;
	Limit.start(FMath::CeilToInt(Seconds * 1000.0));
}

void FHttpCall::HandleBytes()
{
	StartLimit(EHttpPhase::Receiving);
	const QByteArray Bytes = Reply->readAll();
	if (IsSuccess())
	{
		OnBody(std::string_view(Bytes.constData(), static_cast<std::size_t>(Bytes.size())));
		return;
	}
	Refusal += Bytes.left(MaxRefusalBytes - Refusal.size());
	if (Refusal.size() >= MaxRefusalBytes)
	{
		End(MakeRefusal());
	}
}

void FHttpCall::HandleFinished()
{
	const QPointer<FHttpCall> Alive(this);
	if (Reply->bytesAvailable() > 0)
	{
		HandleBytes();
	}
	if (!Alive || !Reply)
	{
		return;
	}
	const int32 Status = GetStatus();
	if (Status >= 300 && Status < 400)
	{
		if (!FollowRedirect(Status))
		{
			End(MakeRefusal());
		}
	}
	else if (Status != 0 && !IsSuccess())
	{
		End(MakeRefusal());
	}
	else
	{
		End(Reply->error() == QNetworkReply::NoError ? TOptional<FHttpFailure>() : MakeFailure(GetNetworkFailure()));
	}
}

void FHttpCall::HandleLimit()
{
	const double Seconds = static_cast<double>(Limit.interval()) / 1000.0;
	FHttpFailure Failure = MakeFailure(EHttpFailure::TimeLimit);
	Failure.Phase = Phase;
	Failure.Seconds = Seconds;
	End(Failure);
}

bool FHttpCall::FollowRedirect(int32 Status)
{
	const QUrl Target = Request.Url.resolved(QUrl(QString::fromLatin1(Reply->rawHeader("Location"))));
	// 303 asks for a GET of something else, which is no answer to a question.
	const bool bAgain = Status == 301 || Status == 302 || Status == 307 || Status == 308;
	if (!bAgain || !Reply->hasRawHeader("Location"))
	{
		return false;
	}
	if (!IsSameOrigin(Target, Request.Url))
	{
		FHttpFailure Failure = MakeFailure(EHttpFailure::RedirectedElsewhere);
		Failure.Origin = ToFString(Target.scheme() + QLatin1String("://") + Target.host() +
								   (Target.port() < 0 ? QString() : QLatin1Char(':') + QString::number(Target.port())));
		End(Failure);
		return true;
	}
	if (++Redirects > MaxRedirects)
	{
		End(MakeFailure(EHttpFailure::TooManyRedirects));
		return true;
	}
	HangUp();
	Request.Url = Target;
	Refusal.clear();
	Start();
	return true;
}

void FHttpCall::End(const TOptional<FHttpFailure>& Failure)
{
	HangUp();
	// Destroys this call, as a rule, and with it the function that is running.
	const TFunction<void(const TOptional<FHttpFailure>&)> Handler = OnEnded;
	Handler(Failure);
}

bool FHttpCall::IsSuccess() const
{
	return GetStatus() >= 200 && GetStatus() < 300;
}

int32 FHttpCall::GetStatus() const
{
	return Reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

FHttpFailure FHttpCall::MakeFailure(EHttpFailure Kind) const
{
	FHttpFailure Failure;
	Failure.Kind = Kind;
	Failure.Host = GetHost();
	return Failure;
}

FHttpFailure FHttpCall::MakeRefusal() const
{
	FHttpFailure Failure = MakeFailure(EHttpFailure::Status);
	Failure.Status = GetStatus();
	Failure.Body = Refusal.toStdString();
	bool bSeconds = false;
	const uint RetryAfter = Reply->rawHeader("Retry-After").trimmed().toUInt(&bSeconds);
	Failure.RetryAfter = bSeconds ? FString::FromInt(static_cast<int32>(RetryAfter)) : FString();
	return Failure;
}

EHttpFailure FHttpCall::GetNetworkFailure() const
{
	switch (Reply->error())
	{
	case QNetworkReply::ConnectionRefusedError:
	case QNetworkReply::NetworkSessionFailedError:
	case QNetworkReply::TemporaryNetworkFailureError:
	case QNetworkReply::UnknownNetworkError:
		return EHttpFailure::NotReached;
	case QNetworkReply::HostNotFoundError:
		return EHttpFailure::HostNotFound;
	case QNetworkReply::SslHandshakeFailedError:
		return EHttpFailure::NotSecure;
	case QNetworkReply::ProxyConnectionRefusedError:
	case QNetworkReply::ProxyConnectionClosedError:
	case QNetworkReply::ProxyNotFoundError:
	case QNetworkReply::ProxyTimeoutError:
	case QNetworkReply::ProxyAuthenticationRequiredError:
	case QNetworkReply::UnknownProxyError:
		return EHttpFailure::ProxyFailed;
	case QNetworkReply::ProtocolInvalidOperationError:
	case QNetworkReply::ProtocolFailure:
		return EHttpFailure::NotHttp;
	default:
		return EHttpFailure::BrokenOff;
	}
}

FString FHttpCall::GetHost() const
{
	return ToFString(
		Request.Url.port() < 0 ? Request.Url.host() : Request.Url.host() + QLatin1Char(':') + QString::number(Request.Url.port()));
}
