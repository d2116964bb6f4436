// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "OAuth/TokenStore.h"

#include "Accounts/Secrets.h"
#include "Accounts/ServiceDatabase.h"

#include <cstdlib>

namespace
{
constexpr std::int64_t CodeSeconds = 60;
constexpr std::int64_t RefreshSeconds = 90 * 24 * 60 * 60;
constexpr std::int64_t GraceSeconds = 60;

// Of one account and of one login; the oldest goes when there are more. A program that refreshes once an hour stays below.
constexpr std::int64_t MaxCodes = 20;
constexpr std::int64_t MaxLogins = 50;
constexpr std::int64_t MaxTokensOfLogin = 2500;

enum class ETokenKind : std::int64_t
{
	Access,
	Refresh
};

template <typename... ArgTypes>
void Run(FSqliteDatabase& Rows, const char* Sql, const ArgTypes&... Args)
{
	FSqliteStatement(Rows, Sql).Bind(Args...).Run();
}

void Forget(FSqliteDatabase& Rows, std::int64_t Now)
{
	Run(Rows, "DELETE FROM codes WHERE expires <= ?", Now);
	Run(Rows, "DELETE FROM logins WHERE expires <= ?", Now);
	Run(Rows, "DELETE FROM tokens WHERE expires <= ?", Now);
}

std::string AddToken(FSqliteDatabase& Rows, std::int64_t Login, std::int64_t Generation, ETokenKind Kind, std::int64_t Expiry)
{
	const std::string Token = MakeSecret();
	Run(Rows, "INSERT INTO tokens(hash, login, generation, kind, expires) VALUES (?, ?, ?, ?, ?)", HashSecret(Token), Login, Generation,
		std::int64_t(Kind), Expiry);
	return Token;
}

FTokens AddTokens(FSqliteDatabase& Rows, std::int64_t Login, std::int64_t Generation, std::int64_t Now)
{
	Forget(Rows, Now);
	const FTokens Tokens = {AddToken(Rows, Login, Generation, ETokenKind::Access, Now + FTokenStore::AccessSeconds),
		AddToken(Rows, Login, Generation, ETokenKind::Refresh, Now + RefreshSeconds)};
	Run(Rows, "UPDATE logins SET expires = ? WHERE id = ?", Now + RefreshSeconds, Login);
	Run(Rows, "DELETE FROM tokens WHERE id IN (SELECT id FROM tokens WHERE login = ? ORDER BY id DESC LIMIT -1 OFFSET ?)", Login,
		MaxTokensOfLogin);
	return Tokens;
}

std::int64_t AddLogin(FSqliteDatabase& Rows, std::int64_t Account, const std::string& CodeHash, std::int64_t Now)
{
	Run(Rows, "DELETE FROM logins WHERE id IN (SELECT id FROM logins WHERE account = ? ORDER BY expires DESC, id DESC LIMIT -1 OFFSET ?)",
		Account, MaxLogins - 1);
	Run(Rows, "INSERT INTO logins(account, code, expires) VALUES (?, ?, ?)", Account, CodeHash, Now + RefreshSeconds);
	return Rows.GetLastInsertedRow();
}

// The account that a code is for, where all is as it was when the code was given.
std::optional<std::int64_t> TakeCode(
	FSqliteDatabase& Rows, const std::string& Hash, const std::string& RedirectUri, const std::string& Challenge, std::int64_t Now)
{
	FSqliteStatement Select(Rows, "SELECT account, redirect, challenge, expires FROM codes WHERE hash = ?");
	if (!Select.Bind(Hash).Next())
	{
		return std::nullopt;
	}
	const bool bGood = Select.GetUtf8(1) == RedirectUri && AreSecretsEqual(Select.GetUtf8(2), Challenge) && Select.GetNumber(3) > Now;
	const std::int64_t Account = Select.GetNumber(0);
	Run(Rows, "DELETE FROM codes WHERE hash = ?", Hash);
	return bGood ? std::optional<std::int64_t>(Account) : std::nullopt;
}
} // namespace

std::optional<std::string> FTokenStore::AddCode(const FAccount& Account, const FCodeTerms& Terms, std::int64_t Now)
{
	const std::string Code = MakeSecret();
	return Database.Write(
		[&](FSqliteDatabase& Rows)
		{
			Forget(Rows, Now);
			Run(Rows, "DELETE FROM codes WHERE hash IN (SELECT hash FROM codes WHERE account = ? ORDER BY expires DESC LIMIT -1 OFFSET ?)",
				Account.Id, MaxCodes - 1);
			Run(Rows,
				"INSERT INTO codes(hash, account, redirect, challenge, expires) SELECT ?, id, ?, ?, ? FROM accounts"
				" WHERE id = ? AND ifnull(password, '') = ?",
				HashSecret(Code), Terms.RedirectUri, Terms.Challenge, Now + CodeSeconds, Account.Id, Account.PasswordHash);
			return Rows.HasChangedRows() ? std::optional<std::string>(Code) : std::nullopt;
		});
}

std::optional<FTokens> FTokenStore::UseCode(
	const std::string& Code, const std::string& RedirectUri, const std::string& Verifier, std::int64_t Now)
{
	return Database.Write(
		[&, Hash = HashSecret(Code)](FSqliteDatabase& Rows) -> std::optional<FTokens>
		{
			Run(Rows, "DELETE FROM logins WHERE code = ?", Hash);
			const std::optional<std::int64_t> Account = TakeCode(Rows, Hash, RedirectUri, HashSecret(Verifier), Now);
			return Account ? std::optional<FTokens>(AddTokens(Rows, AddLogin(Rows, *Account, Hash, Now), 0, Now)) : std::nullopt;
		});
}

std::optional<FTokens> FTokenStore::Refresh(const std::string& RefreshToken, std::int64_t Now)
{
	return Database.Write(
		[&, Hash = HashSecret(RefreshToken)](FSqliteDatabase& Rows) -> std::optional<FTokens>
		{
			FSqliteStatement Select(
				Rows, "SELECT login, generation, ifnull(used, ?3) FROM tokens WHERE hash = ?1 AND kind = ?2 AND expires > ?3");
			if (!Select.Bind(Hash, std::int64_t(ETokenKind::Refresh), Now).Next())
			{
				return std::nullopt;
			}
			const std::int64_t Login = Select.GetNumber(0);
			const std::int64_t Generation = Select.GetNumber(1);
			// A clock that was set back makes nothing good for longer.
			if (std::abs(Now - Select.GetNumber(2)) > GraceSeconds)
			{
				Run(Rows, "DELETE FROM logins WHERE id = ?", Login);
				return std::nullopt;
			}
			// With its siblings, of which one may be a thief's: else both could go on for ever, each with fresh tokens.
			Run(Rows, "UPDATE tokens SET used = ? WHERE login = ? AND kind = ? AND generation <= ? AND used IS NULL", Now, Login,
				std::int64_t(ETokenKind::Refresh), Generation);
			return AddTokens(Rows, Login, Generation + 1, Now);
		});
}

void FTokenStore::Revoke(const std::string& Token)
{
	Database.Write(
		[Hash = HashSecret(Token)](FSqliteDatabase& Rows)
		{
			Run(Rows, "DELETE FROM logins WHERE id IN (SELECT login FROM tokens WHERE hash = ?)", Hash);
			return true;
		});
}

std::optional<FAccount> FTokenStore::FindAccount(const std::string& AccessToken, std::int64_t Now)
{
	return Database.Read(
		[&, Hash = HashSecret(AccessToken)](FSqliteDatabase& Rows) -> std::optional<FAccount>
		{
			FSqliteStatement Select(Rows,
				"SELECT accounts.id, accounts.name FROM tokens JOIN logins ON logins.id = tokens.login"
				" JOIN accounts ON accounts.id = logins.account WHERE tokens.hash = ? AND tokens.kind = ? AND tokens.expires > ?");
			Select.Bind(Hash, std::int64_t(ETokenKind::Access), Now);
			return Select.Next() ? std::optional<FAccount>({Select.GetNumber(0), Select.GetUtf8(1)}) : std::nullopt;
		});
}
