// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ExpectedHtml.h"

#include "MarkupTestSupport.h"

#include <algorithm>
#include <map>
#include <set>

namespace
{
class FDescription
{
public:
	void Text(const std::string& Name, std::string_view Text)
	{
		for (const char Byte : Text)
		{
			if (std::string_view(" \t\n\r\f\v").find(Byte) == std::string_view::npos)
			{
				if (Name != LastName)
				{
					Result += "[" + Name + "]";
					LastName = Name;
				}
				Result += Byte;
			}
		}
	}

	void Code(std::string_view Text)
	{
		Result.append("[code]").append(Text).append("[]");
		LastName.clear();
	}

	std::string Finish() { return DecodePercents(Result); }

	static std::string DecodePercents(const std::string& Text)
	{
		std::string Decoded;
		for (size_t At = 0; At < Text.size(); ++At)
		{
			const bool bEncoded = Text[At] == '%' && At + 2 < Text.size() && std::isxdigit(Text[At + 1]) && std::isxdigit(Text[At + 2]);
			const std::string Character(1, bEncoded ? static_cast<char>(std::stoi(Text.substr(At + 1, 2), nullptr, 16)) : Text[At]);
			Decoded += bEncoded && Character == " " ? "" : Character;
			At += bEncoded ? 2 : 0;
		}
		return Decoded;
	}

private:
	std::string Result;
	std::string LastName;
};

struct FTag
{
	std::string Name;
	bool bClosing = false;
	std::string Source;

	std::string GetAttribute(const std::string& Attribute) const
	{
		const size_t At = Source.find(" " + Attribute + "=\"");
		if (At == std::string::npos)
		{
			return {};
		}
		const size_t Begin = At + Attribute.size() + 3;
		return ResolveReferences(Source.substr(Begin, Source.find('"', Begin) - Begin));
	}
};

const std::map<std::string, std::string> Words = {
	{"em", "Emphasis"}, {"strong", "Strong"}, {"del", "Strikethrough"}, {"a", "Link"}, {"code", "InlineCode"}};

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
			FTag Tag;
			if (Html[At] == '<' && ReadTag(Tag))
			{
				At += Tag.Source.size();
				Apply(Tag);
				continue;
			}
			const size_t End = std::min(Html.find('<', At + 1), Html.size());
			Text(ResolveReferences(Html.substr(At, End - At)));
			At = End;
		}
		return Description.Finish();
	}

private:
	struct FContainer
	{
		std::string Tag;
		int NextNumber = 0;
		bool bParenthesis = false;
	};

	// False for HTML of the example's own, which is text. What stands in the example as it stands here was not made from anything else.
	bool ReadTag(FTag& Tag) const
	{
		static const std::set<std::string> Known = {"p", "h1", "h2", "h3", "h4", "h5", "h6", "ul", "ol", "li", "blockquote", "pre", "code",
			"em", "strong", "a", "img", "hr", "br", "del", "table", "thead", "tbody", "tr", "th", "td", "input"};
		Tag.Source = Html.substr(At, std::max(Html.find('>', At) + 1, At + 1) - At);
		Tag.bClosing = Tag.Source.starts_with("</");
		const size_t NameBegin = Tag.bClosing ? 2 : 1;
		Tag.Name = Tag.Source.substr(NameBegin, Tag.Source.find_first_of(" >", NameBegin) - NameBegin);
		return Known.contains(Tag.Name) && Example.Markdown.find(Tag.Source) == std::string::npos;
	}

	void Apply(const FTag& Tag)
	{
		const std::string& Name = Tag.Name;
		if (Name == "pre" || bInPre)
		{
			ApplyCode(Tag);
		}
		else if (Words.contains(Name))
		{
			ApplyWord(Tag);
		}
		else if (Name == "ul" || Name == "ol" || Name == "blockquote")
		{
			ApplyContainer(Tag);
		}
		else if (Name == "li")
		{
			ApplyItem(Tag);
		}
		else if (Name == "img")
		{
			const std::string Alternative = Tag.GetAttribute("alt");
			OpenWords.push_back("Image");
			Text(Alternative.empty() ? Tag.GetAttribute("src") : Alternative);
			OpenWords.pop_back();
		}
		else if (Name == "hr")
		{
			Block = "HorizontalRule";
			Text(Repeat("\u2500", 40));
			Block.clear();
		}
		else if (Name == "th")
		{
			Tag.bClosing ? OpenWords.clear() : OpenWords.push_back("Strong");
		}
		else if (Name == "table" || (Name.size() == 2 && Name[0] == 'h'))
		{
			Block = Tag.bClosing ? "" : Name == "table" ? "Table" : std::string("Header") + Name[1];
		}
	}

	void ApplyCode(const FTag& Tag)
	{
		bInPre = !(Tag.Name == "pre" && Tag.bClosing);
		if (Tag.Name == "code" && !Tag.bClosing)
		{
			Text("");
			const size_t End = Html.find("</code></pre>", At);
			const std::string Code = ResolveReferences(Html.substr(At, End - At));
			Description.Code(std::string_view(Code).substr(0, Code.empty() ? 0 : Code.size() - 1));
			At = End;
		}
	}

	void ApplyWord(const FTag& Tag)
	{
		if (!Tag.bClosing)
		{
			OpenWords.push_back(Words.at(Tag.Name));
		}
		else
		{
			OpenWords.pop_back();
		}
		if (Tag.Name == "a")
		{
			Tag.bClosing ? EndLink() : BeginLink(Tag);
		}
	}

	void BeginLink(const FTag& Tag)
	{
		LinkAddress = Tag.GetAttribute("href");
		LinkText.clear();
	}

	void EndLink()
	{
		const std::string Address = FDescription::DecodePercents(LinkAddress);
		const std::string Told = FDescription::DecodePercents(LinkText);
		if (!Address.empty() && Address != Told && Address != "mailto:" + Told && Address != "http://" + Told)
		{
			Text("(" + LinkAddress + ")");
		}
	}

	void ApplyContainer(const FTag& Tag)
	{
		if (Tag.bClosing)
		{
			Containers.pop_back();
			return;
		}
		FContainer& Container = Containers.emplace_back(FContainer{Tag.Name});
		const std::string Start = Tag.GetAttribute("start");
		Container.NextNumber = Start.empty() ? 1 : std::stoi(Start);
		Container.bParenthesis = Example.Markdown.find(std::to_string(Container.NextNumber) + ")") != std::string::npos;
	}

	void ApplyItem(const FTag& Tag)
	{
		if (Tag.bClosing)
		{
			Text("");
			return;
		}
		FContainer& List = Containers.back();
		if (List.Tag == "ol")
		{
			Marks += std::to_string(List.NextNumber++) + (List.bParenthesis ? ")" : ".");
		}
		const std::string_view Behind = std::string_view(Html).substr(At);
		const bool bTask = Behind.starts_with("<input ");
		if (bTask)
		{
			Marks += Behind.substr(0, Behind.find('>')).find("checked") == std::string_view::npos ? "\u2610" : "\u2611";
		}
		else if (List.Tag == "ul")
		{
			Marks += "\u2022";
		}
	}

	// An empty text, too, is preceded by the marks that wait for it.
	void Text(const std::string& Text)
	{
		if (Text.empty() || Text.find_first_not_of(" \t\n") != std::string::npos)
		{
			Description.Text(GetName({}), Marks);
			Marks.clear();
		}
		Description.Text(GetName(OpenWords), Text);
		LinkText += Text;
	}

	std::string GetName(std::vector<std::string> Names) const
	{
		std::string Name;
		const auto Quotes = std::ranges::count(Containers, "blockquote", &FContainer::Tag);
		for (int Depth = 0; Depth < std::min<int>(4, Quotes); ++Depth)
		{
			Name += "Blockquote.";
		}
		const std::string Outer = Containers.empty() ? "" : Containers.back().Tag;
		const bool bHasQuotedForm = Block != "Table" && Block != "HorizontalRule";
		const std::string Around = Outer == "ul" ? "UnorderedList" : Outer == "ol" ? "OrderedList" : "Paragraph";
		Name += Block.empty() ? Around : Quotes == 0 || bHasQuotedForm ? Block : "Paragraph";

		// From the innermost on: no word twice, and three at most.
		std::vector<std::string> Kept;
		for (; !Names.empty() && Kept.size() < 3; Names.pop_back())
		{
			if (std::ranges::find(Kept, Names.back()) == Kept.end())
			{
				Kept.insert(Kept.begin(), Names.back());
			}
		}
		for (const std::string& Word : Kept)
		{
			Name += "." + Word;
		}
		return Name;
	}

	const FSuiteExample& Example;
	const std::string& Html;
	size_t At = 0;
	FDescription Description;
	std::vector<FContainer> Containers;
	std::vector<std::string> OpenWords;
	std::string Block;
	std::string Marks;
	std::string LinkAddress;
	std::string LinkText;
	bool bInPre = false;
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
		if (Run.Name == "code")
		{
			Description.Code(Run.Text);
		}
		else
		{
			Description.Text(Run.Name, Run.Text);
		}
	}
	return Description.Finish();
}
