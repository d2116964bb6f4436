// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include <httplib.h>

#include "Accounts/BrowserSessions.h"

#include "Accounts/Secrets.h"
#include "Accounts/ServiceDatabase.h"

namespace
{
constexpr std::int64_t LifetimeSeconds = 7 * 24 * 60 * 60;

// The oldest of an account goes when there are more.
constexpr std::int64_t MaxSessions = 20;

void EndSession(FSqliteDatabase& Rows, const std::string& Hash)
{
	FSqliteStatement(Rows, "DELETE FROM sessions WHERE hash = ?").Bind(Hash).Run();
}

bool AddSession(FSqliteDatabase& Rows, const std::string& Hash, const FAccount& Account, std::int64_t Now)
{
	FSqliteStatement(Rows, "DELETE FROM sessions WHERE expires <= ?").Bind(Now).Run();
	FSqliteStatement(
		Rows, "DELETE FROM sessions WHERE hash IN (SELECT hash FROM sessions WHERE account = ? ORDER BY expires DESC LIMIT -1 OFFSET ?)")
		.Bind(Account.Id, MaxSessions - 1)
		.Run();
	FSqliteStatement(Rows, "INSERT INTO sessions(hash, account, expires) SELECT ?, id, ? FROM accounts WHERE id = ? AND password = ?")
		.Bind(Hash, Now + LifetimeSeconds, Account.Id, Account.PasswordHash)
		.Run();
	return Rows.HasChangedRows();
}
} // namespace

FBrowserSessions::FBrowserSessions(FServiceDatabase& InDatabase, bool bInSecure)
	: Database(InDatabase)
	, bSecure(bInSecure)
	, CookieName(bInSecure ? "__Host-vorel_session" : "vorel_session")
{
}

bool FBrowserSessions::Begin(const FAccount& Account, std::int64_t Now, const httplib::Request& Request, httplib::Response& Response)
{
	const std::string Secret = MakeSecret();
	const bool bBegun = Database.Write(
		[&](FSqliteDatabase& Rows)
		{
			EndSession(Rows, HashSecret(ReadCookie(Request)));
			return AddSession(Rows, HashSecret(Secret), Account, Now);
		});
	if (bBegun)
	{
		SetCookie(Secret, LifetimeSeconds, Response);
	}
	return bBegun;
}

std::optional<FAccount> FBrowserSessions::Find(const httplib::Request& Request, std::int64_t Now)
{
	return Database.Read(
		[Hash = HashSecret(ReadCookie(Request)), Now](FSqliteDatabase& Rows) -> std::optional<FAccount>
		{
			FSqliteStatement Select(Rows, "SELECT accounts.id, accounts.name FROM sessions JOIN accounts ON accounts.id = sessions.account"
										  " WHERE sessions.hash = ? AND sessions.expires > ?");
			Select.Bind(Hash, Now);
			return Select.Next() ? std::optional<FAccount>({Select.GetNumber(0), Select.GetUtf8(1)}) : std::nullopt;
		});
}

void FBrowserSessions::End(const httplib::Request& Request, httplib::Response& Response)
{
	Database.Write(
		[Hash = HashSecret(ReadCookie(Request))](FSqliteDatabase& Rows)
		{
			EndSession(Rows, Hash);
			return true;
		});
	SetCookie("", 0, Response);
}

std::string FBrowserSessions::ReadCookie(const httplib::Request& Request) const
{
	const std::string Cookies = "; " + Request.get_header_value("Cookie");
	const std::string Start = "; " + CookieName + '=';
	const std::size_t Found = Cookies.find(Start);
	return Found == std::string::npos ? std::string()
									  : Cookies.substr(Found + Start.size(), Cookies.find(';', Found + 1) - Found - Start.size());
}

void FBrowserSessions::SetCookie(const std::string& Value, std::int64_t MaxAge, httplib::Response& Response) const
{
	Response.set_header("Set-Cookie", CookieName + '=' + Value + "; Path=/; Max-Age=" + std::to_string(MaxAge) +
										  "; HttpOnly; SameSite=Lax" + (bSecure ? "; Secure" : ""));
}
