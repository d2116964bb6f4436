// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Accounts/AccountStore.h"

#include "Accounts/AccountName.h"
#include "Accounts/ServiceDatabase.h"

namespace
{
FAccount ReadLocalAccount(FSqliteDatabase& Database)
{
	FSqliteStatement Select(Database, "SELECT id, name FROM accounts WHERE password IS NULL");
	return Select.Next() ? FAccount{Select.GetNumber(0), Select.GetUtf8(1)} : FAccount();
}

bool Change(FSqliteDatabase& Database, const char* Sql, const std::string& First, const std::string& Second)
{
	FSqliteStatement(Database, Sql).Bind(First, Second).Run();
	return Database.HasChangedRows();
}
} // namespace

FAccount FAccountStore::GetLocalAccount()
{
	const FAccount Account = Database.Read(ReadLocalAccount);
	return Account.Id != 0 ? Account
						   : Database.Write(
								 [](FSqliteDatabase& Rows)
								 {
									 Rows.Execute("INSERT OR IGNORE INTO accounts(name, key) VALUES ('', '')");
									 return ReadLocalAccount(Rows);
								 });
}

FAccount FAccountStore::NameLocalAccount(const FAccountName& Name)
{
	GetLocalAccount();
	return Database.Write(
		[&](FSqliteDatabase& Rows)
		{
			Change(Rows, "UPDATE OR IGNORE accounts SET name = ?, key = ? WHERE password IS NULL AND name = ''", Name.Shown, Name.Key);
			return ReadLocalAccount(Rows);
		});
}

std::optional<FAccount> FAccountStore::Find(const FAccountName& Name)
{
	return Database.Read(
		[&](FSqliteDatabase& Rows) -> std::optional<FAccount>
		{
			FSqliteStatement Select(Rows, "SELECT id, name, password FROM accounts WHERE key = ? AND password IS NOT NULL");
			Select.Bind(Name.Key);
			return Select.Next() ? std::optional<FAccount>({Select.GetNumber(0), Select.GetUtf8(1), Select.GetUtf8(2)}) : std::nullopt;
		});
}

bool FAccountStore::Add(const FAccountName& Name, const std::string& PasswordHash)
{
	return Database.Write(
		[&](FSqliteDatabase& Rows)
		{
			FSqliteStatement Insert(Rows, "INSERT OR IGNORE INTO accounts(name, key, password) VALUES (?, ?, ?)");
			Insert.Bind(Name.Shown, Name.Key, PasswordHash).Run();
			return Rows.HasChangedRows();
		});
}

bool FAccountStore::SetPassword(const FAccountName& Name, const std::string& PasswordHash)
{
	return Database.Write(
		[&](FSqliteDatabase& Rows)
		{
			for (const char* const Table : {"codes", "logins", "sessions"})
			{
				const std::string Sql = std::string("DELETE FROM ") + Table +
										" WHERE account IN (SELECT id FROM accounts WHERE key = ? AND password IS NOT NULL)";
				FSqliteStatement(Rows, Sql.c_str()).Bind(Name.Key).Run();
			}
			return Change(Rows, "UPDATE accounts SET password = ? WHERE key = ? AND password IS NOT NULL", PasswordHash, Name.Key);
		});
}

bool FAccountStore::Remove(const FAccountName& Name)
{
	return Database.Write(
		[&](FSqliteDatabase& Rows)
		{
			FSqliteStatement(Rows, "DELETE FROM accounts WHERE key = ? AND password IS NOT NULL").Bind(Name.Key).Run();
			return Rows.HasChangedRows();
		});
}

std::vector<std::string> FAccountStore::List()
{
	return Database.Read(
		[](FSqliteDatabase& Rows)
		{
			std::vector<std::string> Names;
			FSqliteStatement Select(Rows, "SELECT name FROM accounts WHERE password IS NOT NULL ORDER BY key");
			while (Select.Next())
			{
				Names.push_back(Select.GetUtf8(0));
			}
			return Names;
		});
}
