// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Accounts/CreditStore.h"

#include "Accounts/ServiceDatabase.h"

#include <algorithm>

static constexpr std::int64_t SecondsPerDay = 24 * 60 * 60;

FCreditStore::FCreditStore(FServiceDatabase& InDatabase, int InDailyCredits)
	: Database(InDatabase)
	, DailyCredits(std::max(InDailyCredits, 0))
{
}

int FCreditStore::GetLeft(std::int64_t Account, std::int64_t Now)
{
	return Database.Read(
		[&](FSqliteDatabase& Rows)
		{
			FSqliteStatement Select(Rows, "SELECT credits_used FROM accounts WHERE id = ? AND credits_day = ?");
			Select.Bind(Account, Now / SecondsPerDay);
			const std::int64_t Used = Select.Next() ? Select.GetNumber(0) : 0;
			return static_cast<int>(std::max<std::int64_t>(DailyCredits - Used, 0));
		});
}

bool FCreditStore::Take(std::int64_t Account, std::int64_t Now)
{
	return Database.Write(
		[&](FSqliteDatabase& Rows)
		{
			FSqliteStatement Update(Rows, "UPDATE accounts SET credits_used = iif(credits_day = ?2, credits_used, 0) + 1, credits_day = ?2"
										  " WHERE id = ?1 AND iif(credits_day = ?2, credits_used, 0) < ?3");
			Update.Bind(Account, Now / SecondsPerDay, std::int64_t{DailyCredits}).Run();
			return Rows.HasChangedRows();
		});
}

void FCreditStore::TopUp(std::int64_t Account)
{
	Database.Write(
		[&](FSqliteDatabase& Rows)
		{
			FSqliteStatement(Rows, "UPDATE accounts SET credits_used = 0 WHERE id = ?").Bind(Account).Run();
			return true;
		});
}

std::int64_t FCreditStore::GetResetTime(std::int64_t Now)
{
	return (Now / SecondsPerDay + 1) * SecondsPerDay;
}
