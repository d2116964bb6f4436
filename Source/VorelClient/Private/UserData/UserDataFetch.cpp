// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/AuthorizedCall.h"
#include "Http/QtText.h"

#include "Account/Server/AuthorizationMetadata.h"
#include "Http/Excerpt.h"
#include "Http/JsonText.h"
#include "UserData/UserDataFetch.h"

#define LOCTEXT_NAMESPACE "VorelClient"

namespace
{
constexpr FRequestLimits Limits{10.0, 30.0, 30.0};
constexpr std::size_t MaxBytes = 64 * 1024;
constexpr int32 MaxRoles = 100;

FString DescribeFailure(const FHttpFailure& Failure)
{
	return Failure.Kind == EHttpFailure::Status ? FString::Printf(TEXT("the server answered with status %d"), Failure.Status)
												: FString::Printf(TEXT("%s could not be reached, or broke off"), *Failure.Host);
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
	Ask(Source.ServiceUrl / TEXT("v1/user"), Source.ServiceTokens, &FUserDataFetch::ReadAccount);
}

void FUserDataFetch::Ask(const FString& Url, IAccessTokenSource* Tokens, FString (FUserDataFetch::*Read)())
{
	Body.clear();
	FHttpRequest Request;
	Request.Url = QUrl(ToQString(Url));
	Call = MakeUnique<FAuthorizedCall>(::MoveTemp(Request), Limits, Tokens);
	Call->OnBody = [this](std::string_view Bytes)
	{
		Body.append(Bytes.substr(0, MaxBytes - Body.size()));
	};
	Call->OnEnded = [this, Read](const TOptional<FHttpFailure>& Failure)
	{
		const FString Problem = Failure ? DescribeFailure(*Failure) : (this->*Read)();
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
	// An empty name would count as nobody.
	Data.UserName = Data.UserName.IsEmpty() ? LOCTEXT("NamelessUser", "Signed-in user").ToString() : Data.UserName;
	const TFunction<void(const TOptional<FVorelUserData>&, const FString&)> Handler = OnDone;
	Handler(Problem.IsEmpty() ? TOptional<FVorelUserData>(Data) : NullOpt, Problem);
}

#undef LOCTEXT_NAMESPACE
