// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Guide/QuestionWords.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>

namespace
{
constexpr std::size_t MaxWords = 64;

const std::unordered_set<std::string_view>& GetStopWords()
{
	static const std::unordered_set<std::string_view> Words = {"a", "about", "actually", "add", "after", "again", "all", "already", "also",
		"always", "am", "an", "and", "another", "any", "anybody", "anyone", "anything", "are", "aren", "as", "at", "back", "be", "because",
		"been", "before", "being", "best", "better", "between", "both", "but", "by", "came", "can", "cannot", "change", "code", "come",
		"comes", "coming", "correct", "correctly", "could", "couldn", "cpp", "create", "did", "didn", "difference", "different", "do",
		"does", "doesn", "doing", "don", "done", "during", "each", "else", "engine", "etc", "ever", "every", "everything", "example",
		"explain", "few", "find", "first", "for", "from", "game", "gave", "get", "gets", "getting", "give", "given", "gives", "go", "goes",
		"going", "gone", "good", "got", "had", "hadn", "has", "hasn", "have", "haven", "he", "hello", "help", "her", "here", "hey", "hi",
		"him", "his", "how", "i", "if", "in", "instead", "into", "is", "isn", "it", "its", "just", "keep", "kind", "know", "knowing",
		"known", "knows", "last", "learn", "let", "lets", "like", "ll", "long", "look", "lot", "lots", "made", "make", "makes", "making",
		"many", "may", "maybe", "me", "might", "more", "most", "much", "must", "my", "near", "need", "needed", "needs", "never", "new",
		"next", "no", "not", "nothing", "now", "of", "off", "ok", "on", "one", "only", "or", "other", "our", "out", "over", "own", "per",
		"perhaps", "please", "possible", "problem", "proper", "properly", "put", "puts", "question", "quick", "quickly", "re", "really",
		"right", "same", "say", "see", "seem", "seems", "set", "she", "should", "shouldn", "show", "simple", "so", "some", "somehow",
		"someone", "something", "still", "take", "taken", "takes", "taking", "tell", "than", "thank", "thanks", "that", "the", "their",
		"them", "then", "there", "these", "they", "thing", "things", "this", "those", "through", "time", "to", "too", "tried", "try",
		"trying", "two", "ue", "ue4", "ue5", "under", "understand", "unreal", "until", "up", "us", "use", "used", "using", "ve", "very",
		"via", "want", "wanted", "wants", "was", "wasn", "way", "ways", "we", "well", "went", "were", "weren", "what", "when", "where",
		"which", "while", "who", "why", "will", "with", "within", "without", "work", "works", "would", "wouldn", "write", "wrong", "yes",
		"yet", "you", "your"};
	return Words;
}

// Words that stand for what was spoken of before.
const std::unordered_set<std::string_view>& GetReferringWords()
{
	static const std::unordered_set<std::string_view> Words = {
		"it", "its", "one", "ones", "same", "that", "them", "these", "they", "this", "those"};
	return Words;
}

// At the beginning of a question they go on from the one before.
const std::unordered_set<std::string_view>& GetConnectingWords()
{
	static const std::unordered_set<std::string_view> Words = {"also", "and", "but", "or", "so", "then"};
	return Words;
}

// Bytes beyond ASCII belong to words of other scripts; the index folds their case itself.
bool IsWordByte(unsigned char Byte)
{
	return Byte >= 0x80 || (Byte >= '0' && Byte <= '9') || (Byte >= 'a' && Byte <= 'z') || (Byte >= 'A' && Byte <= 'Z');
}

// Dashes, curly quotes, ellipses: the characters U+2000 to U+203F.
bool IsPunctuation(const std::string& Text, std::size_t Index)
{
	return Text.compare(Index, 2, "\xE2\x80") == 0;
}

char ToLower(char Byte)
{
	return Byte >= 'A' && Byte <= 'Z' ? static_cast<char>(Byte - 'A' + 'a') : Byte;
}

// The word at the index, in lower case, and moves the index behind it; empty if none begins there.
std::string TakeWord(const std::string& Text, std::size_t& Index)
{
	std::string Word;
	while (Index < Text.size() && IsWordByte(static_cast<unsigned char>(Text[Index])) && !IsPunctuation(Text, Index))
	{
		Word += ToLower(Text[Index++]);
	}
	return Word;
}

bool IsAboutSomething(const std::string& Word)
{
	// A single letter is what is left of "don't" or "C++".
	return Word.size() > 1 && Word.find_first_not_of("0123456789") != std::string::npos && !GetStopWords().count(Word);
}
} // namespace

FQuestionWords GetQuestionWords(const std::string& Question)
{
	FQuestionWords Result;
	std::vector<std::string>& Words = Result.Words;
	bool bFirst = true;
	for (std::size_t Index = 0; Index < Question.size() && Words.size() < MaxWords;)
	{
		std::string Word = TakeWord(Question, Index);
		if (Word.empty())
		{
			Index += IsPunctuation(Question, Index) ? 3 : 1;
			continue;
		}
		Result.bRefersBack |= GetReferringWords().count(Word) || (bFirst && GetConnectingWords().count(Word));
		bFirst = false;
		if (IsAboutSomething(Word) && std::find(Words.begin(), Words.end(), Word) == Words.end())
		{
			Words.push_back(std::move(Word));
		}
	}
	Result.bRefersBack |= Words.empty();
	return Result;
}
