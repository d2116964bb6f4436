// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "QuestionWords.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>

namespace
{
constexpr std::size_t MaxWords = 64;

const std::unordered_set<std::string_view>& GetStopWords()
{
	static const std::unordered_set<std::string_view> Words = {"a", "about", "add", "after", "again", "all", "also", "am", "an", "and",
		"another", "any", "anything", "are", "as", "at", "be", "because", "been", "before", "being", "best", "better", "between", "both",
		"but", "by", "can", "cannot", "change", "code", "correct", "correctly", "could", "cpp", "create", "did", "different", "difference",
		"do", "does", "doing", "don", "done", "each", "engine", "every", "example", "explain", "few", "find", "first", "for", "from",
		"game", "get", "give", "go", "good", "had", "has", "have", "he", "hello", "help", "her", "here", "hey", "hi", "him", "his", "how",
		"i", "if", "in", "instead", "into", "is", "it", "its", "just", "keep", "know", "last", "learn", "let", "like", "long", "look",
		"make", "many", "may", "me", "might", "more", "most", "much", "must", "my", "need", "new", "next", "no", "not", "now", "of", "off",
		"ok", "on", "one", "only", "or", "other", "our", "out", "over", "own", "please", "possible", "problem", "proper", "properly", "put",
		"question", "quick", "quickly", "right", "same", "say", "see", "set", "she", "should", "show", "simple", "so", "some", "something",
		"take", "tell", "than", "thank", "thanks", "that", "the", "their", "them", "then", "there", "these", "they", "thing", "things",
		"this", "those", "time", "to", "too", "try", "two", "ue", "ue4", "ue5", "under", "understand", "unreal", "until", "up", "us", "use",
		"used", "using", "very", "want", "was", "way", "we", "well", "were", "what", "when", "where", "which", "while", "who", "why",
		"will", "with", "without", "work", "works", "would", "write", "wrong", "yes", "you", "your"};
	return Words;
}

// Bytes beyond ASCII belong to words of other scripts; the index folds their case itself.
bool IsWordByte(unsigned char Byte)
{
	return Byte >= 0x80 || (Byte >= '0' && Byte <= '9') || (Byte >= 'a' && Byte <= 'z') || (Byte >= 'A' && Byte <= 'Z');
}

char ToLower(char Byte)
{
	return Byte >= 'A' && Byte <= 'Z' ? static_cast<char>(Byte - 'A' + 'a') : Byte;
}
} // namespace

std::vector<std::string> GetQuestionWords(const std::string& Question)
{
	std::vector<std::string> Words;
	for (std::size_t Index = 0; Index < Question.size() && Words.size() < MaxWords;)
	{
		std::string Word;
		for (; Index < Question.size() && IsWordByte(static_cast<unsigned char>(Question[Index])); ++Index)
		{
			Word += ToLower(Question[Index]);
		}
		++Index;
		// A single letter is what is left of "don't" or "C++".
		if (Word.size() > 1 && !GetStopWords().count(Word) && std::find(Words.begin(), Words.end(), Word) == Words.end())
		{
			Words.push_back(std::move(Word));
		}
	}
	return Words;
}
