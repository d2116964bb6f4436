// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Guide/GuideIndex.h"

#include "Store/SqliteDatabase.h"

namespace
{
// Shorter beginnings are those of too many words.
constexpr std::size_t MinPrefixLength = 4;

int64 ToNumber(std::size_t Index)
{
	return static_cast<int64>(Index);
}

// Rows of an index and SQLite's score, in which better is lower.
std::vector<FGuideIndex::FHit> ReadHits(FSqliteStatement& Select)
{
	std::vector<FGuideIndex::FHit> Hits;
	while (Select.Next())
	{
		Hits.push_back({static_cast<std::size_t>(Select.GetNumber(0)), -Select.GetReal(1)});
	}
	return Hits;
}
} // namespace

FGuideIndex::FGuideIndex()
	: Database(std::make_unique<FSqliteDatabase>(FSqliteDatabase::InMemory, true))
{
	Database->Execute("CREATE VIRTUAL TABLE Article USING fts5(Title, Keywords, Headings, Text, tokenize = 'porter unicode61');"
					  "CREATE VIRTUAL TABLE Section USING fts5(Article UNINDEXED, Position UNINDEXED, Heading, Text,"
					  " tokenize = 'porter unicode61')");
}

FGuideIndex::~FGuideIndex() = default;

std::unique_ptr<FGuideIndex> FGuideIndex::Build(const std::vector<FGuideArticle>& Articles, std::string& OutError)
try
{
	std::unique_ptr<FGuideIndex> Index(new FGuideIndex());
	for (std::size_t Article = 0; Article < Articles.size(); ++Article)
	{
		Index->InsertArticle(Article, Articles[Article]);
	}
	return Index;
}
catch (const FStoreError& Error)
{
	OutError = std::string("The built-in guide can't be indexed: ") + TCHAR_TO_UTF8(Error.Detail) + ".";
	return nullptr;
}

void FGuideIndex::InsertArticle(std::size_t Index, const FGuideArticle& Article)
{
	std::string Headings, Text;
	for (std::size_t Section = 0; Section < Article.Sections.size(); ++Section)
	{
		Headings += Article.Sections[Section].Heading + '\n';
		Text += Article.Sections[Section].Text + '\n';
		InsertSection(Index, Section, Article.Sections[Section]);
	}
	FSqliteStatement Insert(*Database, "INSERT INTO Article (rowid, Title, Keywords, Headings, Text) VALUES (?, ?, ?, ?, ?)");
	Insert.Bind(ToNumber(Index), Article.Title, Article.Keywords, Headings, Text).Run();
}

void FGuideIndex::InsertSection(std::size_t Article, std::size_t Index, const FGuideSection& Section)
{
	FSqliteStatement Insert(*Database, "INSERT INTO Section (Article, Position, Heading, Text) VALUES (?, ?, ?, ?)");
	Insert.Bind(ToNumber(Article), ToNumber(Index), Section.Heading, Section.Text).Run();
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
	if (Expression.empty())
	{
		return {};
	}
	FSqliteStatement Select(
		*Database, "SELECT rowid, bm25(Article, 10.0, 6.0, 4.0, 1.0) AS Score FROM Article WHERE Article MATCH ? ORDER BY Score");
	return ReadHits(Select.Bind(Expression));
}

std::vector<FGuideIndex::FHit> FGuideIndex::FindSections(std::size_t Article, const std::string& Expression) const
{
	FSqliteStatement Select(*Database,
		"SELECT Position, bm25(Section, 0.0, 0.0, 5.0, 1.0) AS Score FROM Section WHERE Section MATCH ? AND Article = ? ORDER BY Score");
	return ReadHits(Select.Bind(Expression, ToNumber(Article)));
}
