// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "GuideIndex.h"

#include <sqlite3.h>

namespace
{
// Shorter beginnings are those of too many words.
constexpr std::size_t MinPrefixLength = 4;

struct FFinalize
{
	void operator()(sqlite3_stmt* Statement) const { sqlite3_finalize(Statement); }
};
using FStatement = std::unique_ptr<sqlite3_stmt, FFinalize>;

FStatement Prepare(sqlite3* Database, const char* Sql)
{
	sqlite3_stmt* Statement = nullptr;
	sqlite3_prepare_v2(Database, Sql, -1, &Statement, nullptr);
	return FStatement(Statement);
}

void Bind(const FStatement& Statement, int Index, const std::string& Text)
{
	sqlite3_bind_text(Statement.get(), Index, Text.data(), static_cast<int>(Text.size()), SQLITE_TRANSIENT);
}

void Bind(const FStatement& Statement, int Index, std::size_t Number)
{
	sqlite3_bind_int64(Statement.get(), Index, static_cast<sqlite3_int64>(Number));
}

// Rows of an index and SQLite's score, in which better is lower.
std::vector<FGuideIndex::FHit> ReadHits(const FStatement& Select)
{
	std::vector<FGuideIndex::FHit> Hits;
	while (sqlite3_step(Select.get()) == SQLITE_ROW)
	{
		Hits.push_back({static_cast<std::size_t>(sqlite3_column_int64(Select.get(), 0)), -sqlite3_column_double(Select.get(), 1)});
	}
	return Hits;
}
} // namespace

void FGuideIndex::FCloseDatabase::operator()(sqlite3* Handle) const
{
	sqlite3_close(Handle);
}

FGuideIndex::FGuideIndex(sqlite3* InDatabase)
	: Database(InDatabase)
{
}

std::unique_ptr<FGuideIndex> FGuideIndex::Build(const std::vector<FGuideArticle>& Articles, std::string& OutError)
{
	sqlite3* Handle = nullptr;
	sqlite3_open(":memory:", &Handle);
	std::unique_ptr<FGuideIndex> Index(new FGuideIndex(Handle));
	bool bOk = Index->Execute("CREATE VIRTUAL TABLE Article USING fts5(Title, Keywords, Headings, Text, tokenize = 'porter unicode61');"
							  "CREATE VIRTUAL TABLE Section USING fts5(Article UNINDEXED, Position UNINDEXED, Heading, Text,"
							  " tokenize = 'porter unicode61')");
	for (std::size_t Article = 0; bOk && Article < Articles.size(); ++Article)
	{
		bOk = Index->InsertArticle(Article, Articles[Article]);
	}
	if (!bOk)
	{
		OutError = std::string("The built-in guide can't be indexed: ") + sqlite3_errmsg(Handle) + ".";
		return nullptr;
	}
	return Index;
}

bool FGuideIndex::Execute(const char* Sql) const
{
	return sqlite3_exec(Database.get(), Sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

bool FGuideIndex::InsertArticle(std::size_t Index, const FGuideArticle& Article) const
{
	std::string Headings, Text;
	bool bOk = true;
	for (std::size_t Section = 0; Section < Article.Sections.size(); ++Section)
	{
		Headings += Article.Sections[Section].Heading + '\n';
		Text += Article.Sections[Section].Text + '\n';
		bOk = bOk && InsertSection(Index, Section, Article.Sections[Section]);
	}
	const FStatement Insert =
		Prepare(Database.get(), "INSERT INTO Article (rowid, Title, Keywords, Headings, Text) VALUES (?, ?, ?, ?, ?)");
	Bind(Insert, 1, Index);
	Bind(Insert, 2, Article.Title);
	Bind(Insert, 3, Article.Keywords);
	Bind(Insert, 4, Headings);
	Bind(Insert, 5, Text);
	return bOk && sqlite3_step(Insert.get()) == SQLITE_DONE;
}

bool FGuideIndex::InsertSection(std::size_t Article, std::size_t Index, const FGuideSection& Section) const
{
	const FStatement Insert = Prepare(Database.get(), "INSERT INTO Section (Article, Position, Heading, Text) VALUES (?, ?, ?, ?)");
	Bind(Insert, 1, Article);
	Bind(Insert, 2, Index);
	Bind(Insert, 3, Section.Heading);
	Bind(Insert, 4, Section.Text);
	return sqlite3_step(Insert.get()) == SQLITE_DONE;
}

std::string FGuideIndex::GetExpression(const std::string& Word) const
{
	const std::string Whole = '"' + Word + '"';
	return Word.size() < MinPrefixLength || !FindArticles(Whole).empty() ? Whole : Whole + '*';
}

std::string FGuideIndex::InSubject(const std::string& Expression)
{
	return "({Title Keywords Headings} : " + Expression + ")";
}

std::vector<FGuideIndex::FHit> FGuideIndex::FindArticles(const std::string& Expression) const
{
	const FStatement Select = Prepare(
		Database.get(), "SELECT rowid, bm25(Article, 10.0, 6.0, 4.0, 1.0) AS Score FROM Article WHERE Article MATCH ? ORDER BY Score");
	Bind(Select, 1, Expression);
	return ReadHits(Select);
}

std::vector<FGuideIndex::FHit> FGuideIndex::FindSections(std::size_t Article, const std::string& Expression) const
{
	const FStatement Select = Prepare(Database.get(),
		"SELECT Position, bm25(Section, 0.0, 0.0, 5.0, 1.0) AS Score FROM Section WHERE Section MATCH ? AND Article = ? ORDER BY Score");
	Bind(Select, 1, Expression);
	Bind(Select, 2, Article);
	return ReadHits(Select);
}
