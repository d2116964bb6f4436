// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Guide/Guide.h"

#include "Guide/QuestionWords.h"

#include <algorithm>
#include <cmath>

namespace
{
// What a word in a running text proves, where one of the subject proves 1.
constexpr double TextProof = 0.4;

constexpr double MinKnownShare = 0.5;

// An article that scores less than this share of the best one is about something else.
constexpr double MinScoreShare = 0.25;

constexpr double InheritedInfluence = 0.5;

// How far a chain of questions that refer back is followed.
constexpr std::ptrdiff_t MaxQuestionsBack = 6;

// As bm25 weighs a word that so many of all articles hold.
double GetRarity(std::size_t Holders, std::size_t All)
{
	return std::log(1.0 + (static_cast<double>(All - Holders) + 0.5) / (static_cast<double>(Holders) + 0.5));
}

void AddAlternative(std::string& Expression, const std::string& Other)
{
	Expression += (Expression.empty() ? "" : " OR ") + Other;
}
} // namespace

// What is known about a question so far.
struct FGuide::FRating
{
	// By article.
	std::vector<double> Scores;

	// Weights of the question's words: those that the guide knows, and all of them.
	double Known = 0.0;
	double All = 0.0;

	// Any of the words.
	std::string Expression{};
};

FGuide::FGuide(std::vector<FGuideArticle> InArticles, std::unique_ptr<FGuideIndex> InIndex)
	: Articles(std::move(InArticles))
	, Index(std::move(InIndex))
{
}

std::unique_ptr<FGuide> FGuide::Load(const std::string& Folder, std::string& OutError)
{
	std::vector<FGuideArticle> Articles = ReadGuideArticles(Folder, OutError);
	std::unique_ptr<FGuideIndex> Index = Articles.empty() ? nullptr : FGuideIndex::Build(Articles, OutError);
	return Index ? std::unique_ptr<FGuide>(new FGuide(std::move(Articles), std::move(Index))) : nullptr;
}

std::vector<FGuideFinding> FGuide::Find(const std::vector<std::string>& Questions) const
{
	const std::lock_guard<std::mutex> Lock(Mutex);
	FRating Rating{.Scores = std::vector<double>(Articles.size())};
	double Influence = 1.0;
	const auto End = Questions.rbegin() + std::min(std::ssize(Questions), MaxQuestionsBack);
	for (auto Question = Questions.rbegin(); Question != End; ++Question)
	{
		const FQuestionWords Words = GetQuestionWords(*Question);
		Rate(Words.Words, Influence, Rating);
		if (!Words.bRefersBack)
		{
			break;
		}
		Influence *= InheritedInfluence;
	}
	return Rating.Known > 0.0 && Rating.Known >= MinKnownShare * Rating.All ? Rank(Rating) : std::vector<FGuideFinding>();
}

void FGuide::Rate(const std::vector<std::string>& Words, double Influence, FRating& Rating) const
{
	std::vector<double> Covered(Articles.size());
	std::vector<bool> IsSubject(Articles.size());
	double All = 0.0;
	std::string Expression;
	for (const std::string& Word : Words)
	{
		const std::string InText = Index->GetExpression(Word);
		const std::string InSubject = FGuideIndex::InSubject(InText);
		const std::vector<FGuideIndex::FHit> TextHits = Index->FindArticles(InText);
		const std::vector<FGuideIndex::FHit> SubjectHits = Index->FindArticles(InSubject);
		const double Rarity = GetRarity((SubjectHits.empty() ? TextHits : SubjectHits).size(), Articles.size());
		All += Rarity;
		Rating.Known += Rarity * (!SubjectHits.empty() ? 1.0 : !TextHits.empty() ? TextProof : 0.0);
		for (const FGuideIndex::FHit& Hit : TextHits)
		{
			Covered[Hit.Index] += Rarity * TextProof;
		}
		for (const FGuideIndex::FHit& Hit : SubjectHits)
		{
			Covered[Hit.Index] += Rarity * (1.0 - TextProof);
			IsSubject[Hit.Index] = true;
		}
		// Twice, so that a word that is the subject of few articles counts by that, however many texts hold it.
		AddAlternative(Expression, InText + " OR " + InSubject);
		AddAlternative(Rating.Expression, InText);
	}
	Rating.All += All;
	for (const FGuideIndex::FHit& Hit : Index->FindArticles(Expression))
	{
		Rating.Scores[Hit.Index] += IsSubject[Hit.Index] ? Influence * Hit.Score * Covered[Hit.Index] / All : 0.0;
	}
}

std::vector<FGuideFinding> FGuide::Rank(const FRating& Rating) const
{
	std::vector<std::size_t> Order;
	const double Least = MinScoreShare * *std::max_element(Rating.Scores.begin(), Rating.Scores.end());
	for (std::size_t Article = 0; Article < Articles.size(); ++Article)
	{
		if (Rating.Scores[Article] > 0.0 && Rating.Scores[Article] >= Least)
		{
			Order.push_back(Article);
		}
	}
	std::stable_sort(Order.begin(), Order.end(), [&](std::size_t A, std::size_t B) { return Rating.Scores[A] > Rating.Scores[B]; });

	std::vector<FGuideFinding> Findings;
	for (const std::size_t Article : Order)
	{
		FGuideFinding& Finding = Findings.emplace_back(FGuideFinding{&Articles[Article], {}});
		for (const FGuideIndex::FHit& Hit : Index->FindSections(Article, Rating.Expression))
		{
			Finding.Sections.push_back(Hit.Index);
		}
	}
	return Findings;
}
