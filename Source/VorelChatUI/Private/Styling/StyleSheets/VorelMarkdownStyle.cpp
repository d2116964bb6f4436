// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Styling/StyleSheets/VorelMarkdownStyle.h"

#include "Brushes/SlateImageBrush.h"
#include "Interfaces/IPluginManager.h"
#include "LogVorel.h"
#include "Misc/Paths.h"
#include "Styling/AppStyle.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateStyleRegistry.h"

namespace
{

constexpr int32 HeaderLevels = 6;
constexpr int32 QuoteDepth = 4;
constexpr int32 MaxInlineWords = 3;
const TCHAR* const InlineWords[] = {
	TEXT("Emphasis"), TEXT("Strong"), TEXT("Strikethrough"), TEXT("Link"), TEXT("InlineCode"), TEXT("Image")};

struct FCombination
{
	FString Name;
	FTextBlockStyle Style;
	TArray<const TCHAR*> Words;
};

FTextBlockStyle WithFace(const FTextBlockStyle& Base, const FName& FaceWord, float SizeFactor = 1.0f)
{
	FTextBlockStyle Style = Base;
	Style.SetFont(FCoreStyle::GetDefaultFontStyle(FaceWord, Base.Font.Size * SizeFactor));
	return Style;
}

float GetHeaderFactor(int32 Level)
{
	switch (Level)
	{
	case 1:
		return 2.25f;
	case 2:
		return 2.0f;
	case 3:
		return 1.75f;
	case 4:
		return 1.5f;
	case 5:
		return 1.25f;
	case 6:
		return 1.125f;
	default:
		return 1.0f;
	}
}

FTextBlockStyle MakeHeader(const FTextBlockStyle& Base, int32 Level)
{
	return WithFace(Base, "Medium", GetHeaderFactor(Level)).SetColorAndOpacity(FSlateColor::UseForeground());
}

FTextBlockStyle MakeBlockquote(const FTextBlockStyle& Base)
{
	return WithFace(Base, "Italic").SetColorAndOpacity(FSlateColor::UseSubduedForeground());
}

FTextBlockStyle MakeEmphasis(const FTextBlockStyle& Base)
{
	return WithFace(Base, "Italic");
}

FTextBlockStyle MakeStrong(const FTextBlockStyle& Base)
{
	return WithFace(Base, "Bold");
}

FTextBlockStyle MakeCode(const FTextBlockStyle& Base)
{
	return WithFace(Base, "Mono").SetColorAndOpacity(FLinearColor(1.0f, 0.7f, 0.4f, 1.0f));
}

FTextBlockStyle MakeLink(const FTextBlockStyle& Base)
{
	const FString Path =
		FPaths::Combine(IPluginManager::Get().FindPlugin(TEXT("VorelAI"))->GetBaseDir(), TEXT("Resources"), TEXT("White.png"));
	const FSlateColor Color = FAppStyle::Get().GetSlateColor("Colors.Primary");
	FTextBlockStyle Style = Base;
	Style.SetColorAndOpacity(Color);
	Style.SetUnderlineBrush(
		FSlateImageBrush(Path, FVector2D(8.0f, 8.0f), Color, ESlateBrushTileType::Both, ESlateBrushImageType::FullColor));
	return Style;
}

FString MakeHeaderName(int32 Level)
{
	return FString::Printf(TEXT("Header%d"), Level);
}

FString MakeStyleName(const FString& Block)
{
	return FString::Printf(TEXT("VorelMarkdown.%s"), *Block);
}

} // namespace

const FName FVorelMarkdownStyle::StyleSetName("FVorelMarkdownStyle");
FVorelMarkdownStyle* FVorelMarkdownStyle::Instance = nullptr;

FVorelMarkdownStyle::FVorelMarkdownStyle()
	: FSlateStyleSet(StyleSetName)
{
	AddBaseStyles();

	TArray<FString> QuotedBlocks;
	AddQuotedBlocks(QuotedBlocks);
	if (Styles.IsEmpty())
	{
		UE_LOG(LogVorel, Warning, TEXT("Styles are not valid"));
	}
	else
	{
		AddInlineStyles(QuotedBlocks);
	}

	PublishStyles();
	FSlateStyleRegistry::RegisterSlateStyle(*this);
}

FVorelMarkdownStyle::~FVorelMarkdownStyle()
{
	FSlateStyleRegistry::UnRegisterSlateStyle(*this);
}

const FVorelMarkdownStyle& FVorelMarkdownStyle::Get()
{
	Initialize();
	return *Instance;
}

void FVorelMarkdownStyle::Initialize()
{
	if (Instance == nullptr)
	{
		Instance = new FVorelMarkdownStyle();
	}
}

void FVorelMarkdownStyle::Shutdown()
{
	const FVorelMarkdownStyle* Old = Instance;
	Instance = nullptr;
	delete Old;
}

const FName& FVorelMarkdownStyle::GetStyleSetName() const
{
	return StyleSetName;
}

FTextBlockStyle FVorelMarkdownStyle::GetStyle(const FString& Name) const
{
	if (!HasStyle(Name))
	{
		UE_LOG(LogVorel, Warning, TEXT("Style %s not found"), *Name);
	}
	return GetStyleOrDefault(Name);
}

FTextBlockStyle FVorelMarkdownStyle::GetStyleOrDefault(const FString& Name) const
{
	const FTextBlockStyle* Style = Styles.Find(Name);
	return Style != nullptr ? *Style : DefaultStyle;
}

bool FVorelMarkdownStyle::HasStyle(const FString& Name) const
{
	return Styles.Contains(Name);
}

FTextBlockStyle FVorelMarkdownStyle::CombinedStyle(const FTextBlockStyle& Base, const FString& Word) const
{
	if (Word.Equals(TEXT("Emphasis"), ESearchCase::IgnoreCase))
	{
		return MakeEmphasis(Base);
	}
	if (Word.Equals(TEXT("Strong"), ESearchCase::IgnoreCase))
	{
		return MakeStrong(Base);
	}
	if (Word.Equals(TEXT("Link"), ESearchCase::IgnoreCase))
	{
		return MakeLink(Base);
	}
	if (Word.Equals(TEXT("InlineCode"), ESearchCase::IgnoreCase))
	{
		return MakeCode(Base);
	}
	if (Word.Equals(TEXT("Strikethrough"), ESearchCase::IgnoreCase))
	{
		FTextBlockStyle Style = Base;
		Style.SetStrikeBrush(*FAppStyle::Get().GetBrush("DefaultTextUnderline"));
		return Style;
	}
	if (Word.Equals(TEXT("Image"), ESearchCase::IgnoreCase))
	{
		return MakeCode(Base);
	}
	if (Word.Equals(TEXT("Blockquote"), ESearchCase::IgnoreCase))
	{
		return MakeBlockquote(Base);
	}
	UE_LOG(LogVorel, Warning, TEXT("Style %s not found in CombinedStyle"), *Word);
	return Base;
}

void FVorelMarkdownStyle::AddBaseStyles()
{
	DefaultStyle = FTextBlockStyle::GetDefault();
	DefaultStyle.SetFont(FCoreStyle::GetDefaultFontStyle("Regular", 10.0f)).SetColorAndOpacity(FSlateColor::UseForeground());

	Styles.Add(TEXT("VorelMarkdown.Paragraph"), DefaultStyle);
	Styles.Add(TEXT("VorelMarkdown.Header"), MakeHeader(DefaultStyle, 1));
	for (int32 Level = 1; Level <= HeaderLevels; ++Level)
	{
		Styles.Add(MakeStyleName(MakeHeaderName(Level)), MakeHeader(DefaultStyle, Level));
	}
	Styles.Add(TEXT("VorelMarkdown.OrderedList"), DefaultStyle);
	Styles.Add(TEXT("VorelMarkdown.UnorderedList"), DefaultStyle);
	Styles.Add(TEXT("VorelMarkdown.Blockquote"), MakeBlockquote(DefaultStyle));
	Styles.Add(TEXT("VorelMarkdown.Table"), DefaultStyle);
	Styles.Add(TEXT("VorelMarkdown.HorizontalRule"), DefaultStyle);
	Styles.Add(TEXT("VorelMarkdown.ListItem"), DefaultStyle);
	Styles.Add(TEXT("VorelMarkdown.Emphasis"), MakeEmphasis(DefaultStyle));
	Styles.Add(TEXT("VorelMarkdown.Strong"), MakeStrong(DefaultStyle));
	Styles.Add(TEXT("VorelMarkdown.Link"), MakeLink(DefaultStyle));
	Styles.Add(TEXT("VorelMarkdown.Image"), MakeCode(DefaultStyle));
	Styles.Add(TEXT("VorelMarkdown.InlineCode"), MakeCode(DefaultStyle));
	Styles.Add(TEXT("VorelMarkdown.AutoLink"), MakeLink(DefaultStyle));
	Styles.Add(TEXT("VorelMarkdown.Text"), DefaultStyle);
}

void FVorelMarkdownStyle::AddQuotedBlocks(TArray<FString>& OutQuotedBlocks)
{
	FString Prefix;
	for (int32 Depth = 1; Depth <= QuoteDepth; ++Depth)
	{
		Prefix += Depth == 1 ? TEXT("Blockquote") : TEXT(".Blockquote");
		const auto Add = [this, &Prefix, &OutQuotedBlocks](const FString& Block, const FTextBlockStyle& Style)
		{
			const FString QuotedBlock = FString::Printf(TEXT("%s.%s"), *Prefix, *Block);
			Styles.Add(MakeStyleName(QuotedBlock), Style);
			OutQuotedBlocks.Add(QuotedBlock);
		};
		// The quote's own word once, at any depth: only the name is deeper.
		const auto Quoted = [this](const FString& Block)
		{
			return CombinedStyle(Styles.FindChecked(MakeStyleName(Block)), TEXT("Blockquote"));
		};

		Add(TEXT("Header"), Quoted(TEXT("Header")));
		for (int32 Level = 1; Level <= HeaderLevels; ++Level)
		{
			Add(MakeHeaderName(Level), Quoted(MakeHeaderName(Level)));
		}
		Add(TEXT("Paragraph"), MakeBlockquote(DefaultStyle));
		Add(TEXT("OrderedList"), Quoted(TEXT("OrderedList")));
		Add(TEXT("UnorderedList"), Quoted(TEXT("UnorderedList")));
		Add(TEXT("Paragraph.UnorderedList"), Quoted(TEXT("UnorderedList")));
		Add(TEXT("Paragraph.OrderedList"), Quoted(TEXT("OrderedList")));
	}
}

void FVorelMarkdownStyle::AddInlineStyles(const TArray<FString>& QuotedBlocks)
{
	// There is no style of the block "CodeBlock", so every start reports it once. Code blocks have a style set of their own.
	TArray<FString> Blocks = {TEXT("Header"), TEXT("Paragraph"), TEXT("OrderedList"), TEXT("UnorderedList"), TEXT("Blockquote"),
		TEXT("CodeBlock"), TEXT("Table")};
	for (int32 Level = 1; Level <= HeaderLevels; ++Level)
	{
		Blocks.Add(MakeHeaderName(Level));
	}
	Blocks.Append(QuotedBlocks);

	for (const FString& Block : Blocks)
	{
		const FTextBlockStyle* BlockStyle = Styles.Find(MakeStyleName(Block));
		if (BlockStyle == nullptr)
		{
			UE_LOG(LogVorel, Warning, TEXT("BlockStyle %s not found in Styles"), *Block);
			continue;
		}
		// A copy, since adding moves the map's entries.
		const FTextBlockStyle Base = *BlockStyle;
		AddInlineStylesOf(Block, Base);
	}
}

void FVorelMarkdownStyle::AddInlineStylesOf(const FString& Block, const FTextBlockStyle& Base)
{
	TArray<FCombination> Shorter = {{MakeStyleName(Block), Base, {}}};
	for (int32 NumWords = 1; NumWords <= MaxInlineWords; ++NumWords)
	{
		TArray<FCombination> Longer;
		for (const FCombination& Combination : Shorter)
		{
			for (const TCHAR* Word : InlineWords)
			{
				if (Combination.Words.Contains(Word))
				{
					continue;
				}
				FCombination& Extended = Longer.Add_GetRef(Combination);
				Extended.Name += FString::Printf(TEXT(".%s"), Word);
				Extended.Style = CombinedStyle(Combination.Style, Word);
				Extended.Words.Add(Word);
				Styles.Add(Extended.Name, Extended.Style);
			}
		}
		Shorter = MoveTemp(Longer);
	}
}

void FVorelMarkdownStyle::PublishStyles()
{
	for (const TPair<FString, FTextBlockStyle>& Pair : Styles)
	{
		Set(FName(*Pair.Key), Pair.Value);
	}
}

FString FVorelMarkdownStyle::GetDemoText()
{
	FString Text;
	for (const TPair<FString, FTextBlockStyle>& Pair : Get().Styles)
	{
		Text += FString::Printf(TEXT(" <%s> This is text in %s </> \n\n"), *Pair.Key, *Pair.Key);
	}
	Text += TEXT("<code> int main() __NL__ {    const std::string message: \"Hello, World!\";  __NL__  std::cout << message << std::endl;  "
				 "__NL__  return 0;}</> \n");
	return Text;
}
