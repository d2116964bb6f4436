// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/AuthorizedCall.h"
#include "Http/QtText.h"

#include "Assistant/AnswerCall.h"
#include "Assistant/FailureText.h"
#include "Http/JsonText.h"

namespace
{
constexpr std::size_t MaxModelListBytes = 8 * 1024 * 1024;

const char* GetRoleName(EChatRole Role)
{
	return Role == EChatRole::Assistant ? "assistant" : Role == EChatRole::System ? "system" : "user";
}

// A question that was never answered is joined with the next one, since many models take nothing but roles in turn.
FJson MakeMessages(const TArray<FChatMessage>& Messages)
{
	FJson List = FJson::array();
	for (const FChatMessage& Message : Messages)
	{
		const char* const Role = GetRoleName(Message.Role);
		if (!List.empty() && List.back()["role"] == Role)
		{
			FJson& Content = List.back()["content"];
			Content = Content.get<std::string>() + "\n\n" + ToUtf8(Message.Text);
		}
		else
		{
			List.push_back({{"role", Role}, {"content", ToUtf8(Message.Text)}});
		}
	}
	return List;
}

// {"data": [{"id": ...}]}, or a list of names in other places.
FString FindFirstModel(std::string_view Body)
{
	const FJson Root = ParseJson(Body);
	const FJson& Data = Root.is_array() ? Root : GetMember(Root, "data");
	for (const FJson& Model : Data.is_array() ? Data : GetMember(Root, "models"))
	{
		for (const FJson& Name : {Model, GetMember(Model, "id"), GetMember(Model, "name")})
		{
			if (!ToString(Name).IsEmpty())
			{
				return ToString(Name);
			}
		}
	}
	return FString();
}

FAnswerEnd MakeFailure(const FText& Failure)
{
	return FAnswerEnd{EAnswerEnd::Failed, Failure, false};
}
} // namespace

FAnswerCall::FAnswerCall(FAssistantEndpoint& InEndpoint, const FRequestLimits& InLimits)
	: Endpoint(InEndpoint)
	, Limits(InLimits)
{
}

FAnswerCall::~FAnswerCall() = default;

void FAnswerCall::Start(const TArray<FChatMessage>& InMessages, EChatMode InMode)
{
	Messages = InMessages;
	Mode = InMode;
	const QUrl Url = MakeRequest(TEXT("")).Url;
	if (!Endpoint.Unavailable.IsEmpty())
	{
		OnEnded(MakeFailure(Endpoint.Unavailable));
	}
	else if (!Url.isValid() || Url.host().isEmpty() || (Url.scheme() != QLatin1String("http") && Url.scheme() != QLatin1String("https")))
	{
		OnEnded(MakeFailure(FailureText::BadAddress(Endpoint.BaseUrl)));
	}
	else if (Endpoint.Model.IsEmpty() && Endpoint.FirstModel.IsEmpty())
	{
		AskForModels();
	}
	else
	{
		AskForAnswer();
	}
}

void FAnswerCall::AskForModels()
{
	FHttpRequest Request = MakeRequest(TEXT("/models"));
	Request.Accept = "application/json";
	Http = MakeUnique<FAuthorizedCall>(::MoveTemp(Request), Limits, Endpoint.Tokens);
	Http->OnBody = [this](std::string_view Bytes)
	{
		Models += Bytes;
		if (Models.size() > MaxModelListBytes)
		{
			Http->HangUp();
			OnEnded(MakeFailure(FailureText::TooLong()));
		}
	};
	Http->OnEnded = [this](const TOptional<FHttpFailure>& Failure)
	{
		ReadModels(Failure);
	};
	Http->Start();
}

void FAnswerCall::ReadModels(const TOptional<FHttpFailure>& Failure)
{
	Endpoint.FirstModel = FindFirstModel(Models);
	if (Failure)
	{
		OnEnded(MakeEnd(*Failure));
	}
	else if (Endpoint.FirstModel.IsEmpty())
	{
		OnEnded(MakeFailure(FailureText::NoModel()));
	}
	else
	{
		AskForAnswer();
	}
}

void FAnswerCall::AskForAnswer()
{
	const FString& Model = Endpoint.Model.IsEmpty() ? Endpoint.FirstModel : Endpoint.Model;
	FJson Question{{"model", ToUtf8(Model)}, {"stream", true}, {"messages", MakeMessages(Messages)}};
	if (Endpoint.Tokens)
	{
		Question["metadata"] = {{"vorel_mode", Mode == EChatMode::Agent ? "agent" : "chat"}};
	}
	const std::string Body = Question.dump();
	FHttpRequest Request = MakeRequest(TEXT("/chat/completions"));
	Request.Accept = "text/event-stream, application/json";
	Request.Body = QByteArray(Body.data(), static_cast<qsizetype>(Body.size()));
	Http = MakeUnique<FAuthorizedCall>(::MoveTemp(Request), Limits, Endpoint.Tokens);
	Http->OnBody = [this](std::string_view Bytes)
	{
		ReadAnswer(Bytes);
	};
	Http->OnEnded = [this](const TOptional<FHttpFailure>& Failure)
	{
		HandleAnswerEnded(Failure);
	};
	Http->Start();
}

void FAnswerCall::ReadAnswer(std::string_view Bytes)
{
	bAnswerBegan = true;
	Reader.Feed(Bytes);
	if (Reader.GetEnd())
	{
		Reader.GetEnd()->Kind == EAnswerEnd::Failed ? Http->HangUp() : Http->LetGo();
	}
	Deliver();
}

void FAnswerCall::HandleAnswerEnded(const TOptional<FHttpFailure>& Failure)
{
	if (!Failure)
	{
		Reader.Close();
		Deliver();
	}
	else
	{
		OnEnded(MakeEnd(*Failure));
	}
}

void FAnswerCall::Deliver()
{
	const FString Text = Reader.TakeText();
	if (!Text.IsEmpty())
	{
		OnText(Text);
	}
	if (Reader.GetEnd())
	{
		OnEnded(*Reader.GetEnd());
	}
}

FHttpRequest FAnswerCall::MakeRequest(const TCHAR* Path) const
{
	FString Base = Endpoint.BaseUrl.TrimStartAndEnd();
	while (Base.RemoveFromEnd(TEXT("/")))
	{
	}
	FHttpRequest Request;
	Request.Url = QUrl(ToQString(Base + Path));
	Request.BearerToken = QByteArray::fromStdString(ToUtf8(Endpoint.ApiKey));
	return Request;
}

FAnswerEnd FAnswerCall::MakeEnd(const FHttpFailure& Failure) const
{
	constexpr int32 PaymentRequired = 402;
	const bool bNothingLeft = Failure.Kind == EHttpFailure::Status && Failure.Status == PaymentRequired;
	// The answer may have begun, and been paid for, without a byte of it coming through.
	const bool bLost = Failure.Kind == EHttpFailure::BrokenOff ||
					   (Failure.Kind == EHttpFailure::TimeLimit && Failure.Phase == EHttpPhase::WaitingForFirstByte);
	const FText Text = Endpoint.Tokens ? FailureText::DescribeOfService(Failure, Endpoint.BillingUrl) : FailureText::Describe(Failure);
	return FAnswerEnd{EAnswerEnd::Failed, Text, bAnswerBegan || bNothingLeft || bLost};
}
