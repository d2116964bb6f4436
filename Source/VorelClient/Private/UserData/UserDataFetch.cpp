// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/AuthorizedCall.h"
#include "Account/NextTurn.h"
#include "Http/QtText.h"

#include "Account/Server/AuthorizationMetadata.h"
#include "Http/BackgroundRequest.h"
#include "Http/Excerpt.h"
#include "Http/JsonText.h"
#include "UserData/UserDataFetch.h"

#define LOCTEXT_NAMESPACE "VorelClient"

namespace
{
constexpr std::size_t MaxBytes = 64 * 1024;
constexpr int32 MaxRoles = 100;
// What the bar has room for.
constexpr int32 MaxNameLength = 40;

// By a server that could be asked, and keeps what it knows to itself.
bool IsForbidden(const TOptional<FHttpFailure>& Failure)
{
	return Failure && Failure->Kind == EHttpFailure::Status && !Failure->Host.IsEmpty() &&
		   (Failure->Status == 401 || Failure->Status == 403);
}

TArray<FString> ReadRoles(const FJson& List)
{
	TArray<FString> Roles;
	for (const FJson& Role : List.is_array() ? List : FJson::array())
	{
		if (Role.is_string() && Roles.Num() < MaxRoles)
		{
			Roles.Add(MakeExcerpt(ToString(Role)));
		}
	}
	return Roles;
}

// The first of these members that holds a text.
FString ReadFirst(const FJson& Object, std::initializer_list<const char*> Names)
{
	for (const char* const Name : Names)
	{
		const FString Text = MakeExcerpt(ToString(GetMember(Object, Name)));
		if (!Text.IsEmpty())
		{
			return Text;
		}
	}
	return FString();
}
} // namespace

FUserDataFetch::FUserDataFetch(const FUserDataSource& InSource)
	: Source(InSource)
{
}

FUserDataFetch::~FUserDataFetch() = default;

void FUserDataFetch::Start()
{
	Limit = MakeUnique<FNextTurn>([this] { End(TEXT("the answer is too long, or does not come to its end")); });
	Limit->Ask(Source.MaxSeconds);
	Ask(Source.ServiceUrl / TEXT("v1/user"), Source.ServiceTokens, &FUserDataFetch::ReadAccount);
}

void FUserDataFetch::Ask(const FString& Url, IAccessTokenSource* Tokens, FString (FUserDataFetch::*Read)())
{
	Body.clear();
	FHttpRequest Request;
	Request.Url = QUrl(ToQString(Url));
	Call = MakeUnique<FAuthorizedCall>(::MoveTemp(Request), BackgroundRequest::Limits, Tokens);
	Call->OnBody = [this](std::string_view Bytes)
	{
		Body += Bytes;
		if (Body.size() > MaxBytes)
		{
			Call->HangUp();
			Limit->Ask();
		}
	};
	Call->OnEnded = [this, Read](const TOptional<FHttpFailure>& Failure)
	{
		const bool bNameless = IssuerRequest && IsForbidden(Failure);
		const FString Problem = !Failure ? (this->*Read)() : bNameless ? FString() : BackgroundRequest::Describe(*Failure);
		if (Problem.IsEmpty() && !IssuerRequest && Source.Issuer)
		{
			AskIssuer();
		}
		else
		{
			End(Problem);
		}
	};
	Call->Start();
}

FString FUserDataFetch::ReadAccount()
{
	const FJson Root = ParseJson(Body);
	const FJson& Credits = GetMember(Root, "credits");
	if (!Credits.is_number())
	{
		return TEXT("the server's answer is no user data");
	}
	Data.UserName = ReadFirst(Root, {"name"});
	Data.Email = ReadFirst(Root, {"email"});
	Data.Credits = static_cast<int32>(FMath::Clamp<double>(Credits.get<double>(), 0.0, MAX_int32));
	Data.Entitlements = ReadRoles(GetMember(Root, "roles"));
	return FString();
}

void FUserDataFetch::AskIssuer()
{
	IssuerRequest = Source.Issuer->Request(
		[this](const FAuthorizationServer* Server, const FText& Failure)
		{
			if (Server && !Server->UserInfoEndpoint.empty())
			{
				Ask(FromUtf8(Server->UserInfoEndpoint), Source.IssuerTokens, &FUserDataFetch::ReadUserInfo);
			}
			else
			{
				End(Failure.ToString());
			}
		});
}

FString FUserDataFetch::ReadUserInfo()
{
	const FJson Root = ParseJson(Body);
	if (!Root.is_object())
	{
		return TEXT("the authorization server's answer is no user data");
	}
	Data.UserName = ReadFirst(Root, {"name", "preferred_username", "nickname", "email", "sub"});
	Data.Email = ReadFirst(Root, {"email"});
	return FString();
}

void FUserDataFetch::End(const FString& Problem)
{
	Limit.Reset();
	// An empty name would count as nobody.
	const FString Nameless = LOCTEXT("NamelessUser", "Signed-in user").ToString();
	Data.UserName = Data.UserName.IsEmpty() ? Nameless : MakeExcerpt(Data.UserName, MaxNameLength);
	const TFunction<void(const TOptional<FVorelUserData>&, const FString&)> Handler = OnDone;
	Handler(Problem.IsEmpty() ? TOptional<FVorelUserData>(Data) : NullOpt, Problem);
}

#undef LOCTEXT_NAMESPACE
