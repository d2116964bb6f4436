// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkdownSuite.h"
#include "MarkupTestSupport.h"

#include <algorithm>
#include <map>

namespace
{
std::string DecodePercents(std::string_view Text)
{
	std::string Decoded;
	for (size_t At = 0; At < Text.size(); ++At)
	{
		const bool bEncoded = Text[At] == '%' && At + 2 < Text.size() && std::isxdigit(Text[At + 1]) && std::isxdigit(Text[At + 2]);
		const char Character = bEncoded ? static_cast<char>(std::stoi(std::string(Text.substr(At + 1, 2)), nullptr, 16)) : Text[At];
		Decoded.append(bEncoded && Character == ' ' ? 0 : 1, Character);
		At += bEncoded ? 2 : 0;
	}
	return Decoded;
}

class FDescription
{
public:
	void Add(const std::string& Name, std::string_view Text)
	{
		if (Name == "code")
		{
			Result.append("[code]").append(Text).append("[]");
			LastName.clear();
			return;
		}
		for (const char Byte : Text)
		{
			if (std::string_view(" \t\n").find(Byte) == std::string_view::npos)
			{
				Result += Name == LastName ? "" : "[" + Name + "]";
				Result += Byte;
				LastName = Name;
			}
		}
	}

	std::string Finish() const { return DecodePercents(Result); }

private:
	std::string Result;
	std::string LastName;
};

class FHtmlReader
{
public:
	explicit FHtmlReader(const FSuiteExample& InExample)
		: Example(InExample)
		, Html(InExample.Html)
	{
	}

	std::string Read()
	{
		while (At < Html.size())
		{
			const bool bTag = Html[At] == '<' && ReadTag();
			const size_t End = bTag ? At + Tag.size() : std::min(Html.find('<', At + 1), Html.size());
			const std::string Piece = Html.substr(At, End - At);
			At = End;
			bTag ? Apply() : Text(GetShownText(Piece));
		}
		return Description.Finish();
	}

private:
	// False for HTML of the example's own, which is text. What stands in the example as it stands here was not made from anything else.
	bool ReadTag()
	{
		static constexpr std::string_view Known =
			" p h1 h2 h3 h4 h5 h6 ul ol li blockquote pre code em strong a img hr br del table thead tbody tr th td input ";
		Tag = Html.substr(At, std::max(Html.find('>', At) + 1, At + 1) - At);
		bClosing = Tag.starts_with("</");
		const size_t Begin = bClosing ? 2 : 1;
		Name = Tag.substr(Begin, Tag.find_first_of(" >", Begin) - Begin);
		return Known.find(" " + Name + " ") != std::string_view::npos && Example.Markdown.find(Tag) == std::string::npos;
	}

	std::string GetAttribute(const char* Attribute, const char* Default = "") const
	{
		const std::string Opening = std::string(" ") + Attribute + "=\"";
		const size_t Begin = Tag.find(Opening);
		const size_t ValueBegin = Begin + Opening.size();
		return Begin == std::string::npos ? Default : GetShownText(Tag.substr(ValueBegin, Tag.find('"', ValueBegin) - ValueBegin));
	}

	void Apply()
	{
		static const std::map<std::string, const char*> InlineWords = {
			{"em", "Emphasis"}, {"strong", "Strong"}, {"del", "Strikethrough"}, {"a", "Link"}, {"code", "InlineCode"}, {"th", "Strong"}};
		const auto Word = InlineWords.find(Name);
		if (Name == "pre" && !bClosing)
		{
			ReadCode();
		}
		else if (Word != InlineWords.end())
		{
			bClosing ? Words.pop_back() : Words.push_back(Word->second);
			if (Name == "a")
			{
				bClosing ? EndLink() : void(LinkText.clear());
				LinkAddress = GetAttribute("href");
			}
		}
		else if (Name == "ul" || Name == "ol" || Name == "blockquote")
		{
			bClosing ? Containers.pop_back() : Containers.push_back({Name, std::stoi(GetAttribute("start", "1"))});
		}
		else if (Name == "li")
		{
			bClosing ? Text("") : BeginItem();
		}
		else if (Name == "img")
		{
			const std::string Alternative = GetAttribute("alt");
			Words.push_back("Image");
			Text(Alternative.empty() ? GetAttribute("src") : Alternative);
			Words.pop_back();
		}
		else if (Name == "table" || Name == "hr" || Name[0] == 'h')
		{
			Block = bClosing ? "" : Name == "table" ? "Table" : Name == "hr" ? "HorizontalRule" : std::string("Header") + Name[1];
			if (Name == "hr")
			{
				Text(Repeat("\u2500", 24));
				Block.clear();
			}
		}
	}

	void ReadCode()
	{
		Text("");
		const size_t Begin = Html.find('>', At) + 1;
		const size_t End = Html.find("</code></pre>", Begin);
		const std::string Code = GetShownText(Html.substr(Begin, End - Begin));
		Description.Add("code", std::string_view(Code).substr(0, Code.empty() ? 0 : Code.size() - 1));
		At = Html.find('\n', End);
	}

	void EndLink()
	{
		const std::string Address = DecodePercents(LinkAddress);
		const std::string Told = DecodePercents(LinkText);
		if (!Address.empty() && Address != Told && Address != "mailto:" + Told && Address != "http://" + Told)
		{
			Text("(" + LinkAddress + ")");
		}
	}

	void BeginItem()
	{
		auto& [List, NextNumber] = Containers.back();
		const std::string Number = std::to_string(NextNumber++);
		const std::string_view Behind = std::string_view(Html).substr(At);
		const bool bTask = Behind.starts_with("<input ");
		const bool bDone = Behind.substr(0, Behind.find('>')).find("checked") != std::string_view::npos;
		if (List == "ol")
		{
			Marks += Number + (Example.Markdown.find(Number + ")") == std::string::npos ? "." : ")");
		}
		Marks += bTask ? (bDone ? "\u2611" : "\u2610") : List == "ol" ? "" : "\u2022";
	}

	// The marks that wait for it come before any text, even an empty one, but not before the white space between tags.
	void Text(const std::string& Text)
	{
		if (Text.empty() || Text.find_first_not_of(" \t\n") != std::string::npos)
		{
			Description.Add(GetName({}), Marks);
			Marks.clear();
		}
		Description.Add(GetName(Words), Text);
		LinkText += Text;
	}

	std::string GetName(std::vector<std::string> InlineWords) const
	{
		const auto Quotes = static_cast<size_t>(std::ranges::count(Containers, "blockquote", &std::pair<std::string, int>::first));
		const std::string Outer = Containers.empty() ? "" : Containers.back().first;
		const std::string Around = Outer == "ul" ? "UnorderedList" : Outer == "ol" ? "OrderedList" : "Paragraph";
		const bool bNoQuotedForm = Block == "Table" || Block == "HorizontalRule";
		std::string Result = Repeat("Blockquote.", std::min<size_t>(4, Quotes));
		Result += Block.empty() ? Around : Quotes > 0 && bNoQuotedForm ? "Paragraph" : Block;

		// From the innermost on: no word twice, and three at most.
		std::vector<std::string> Kept;
		for (; !InlineWords.empty() && Kept.size() < 3; InlineWords.pop_back())
		{
			if (std::ranges::find(Kept, InlineWords.back()) == Kept.end())
			{
				Kept.insert(Kept.begin(), InlineWords.back());
			}
		}
		for (const std::string& Word : Kept)
		{
			Result += "." + Word;
		}
		return Result;
	}

	const FSuiteExample& Example;
	const std::string& Html;
	size_t At = 0;
	FDescription Description;

	// The tag that was read last.
	std::string Tag;
	std::string Name;
	bool bClosing = false;

	// Tags, with the number of the next item.
	std::vector<std::pair<std::string, int>> Containers;
	std::vector<std::string> Words;
	std::string Block;
	std::string Marks;
	std::string LinkAddress;
	std::string LinkText;
};
} // namespace

std::string DescribeExpected(const FSuiteExample& Example)
{
	return FHtmlReader(Example).Read();
}

std::string DescribeMarkup(const std::string& Markup)
{
	FDescription Description;
	for (const FShownRun& Run : ReadMarkup(Markup))
	{
		Description.Add(Run.Name, Run.Text);
	}
	return Description.Finish();
}
