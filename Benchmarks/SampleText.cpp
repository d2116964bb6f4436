// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "SampleText.h"

FString MakeSampleMarkdown(int32 Length)
{
	FString Text;
	for (int32 Section = 1; Text.Len() < Length; ++Section)
	{
		Text.Appendf(TEXT("## Section %d: delegates\n\n"), Section);
		Text +=
			TEXT("A *delegate* stores a call that is made later. In **the editor** most events are `DECLARE_MULTICAST_DELEGATE` members; "
				 "a widget binds one by shared pointer, so that it is skipped once the widget is gone & its memory with it. See "
				 "[the guide](https://example.org/guide?topic=delegates) for the rules that < and > follow in templates.\n\n");
		Text.Appendf(
			TEXT("1. Declare the type, for instance number %d.\n2. Add a member.\n   - Keep it **public**.\n   - Name it `On...`.\n"
				 "3. Broadcast it when the state has changed, *after* the state has changed.\n\n"),
			Section);
		Text.Appendf(
			TEXT("```cpp\nDECLARE_MULTICAST_DELEGATE_OneParam(FOnValueChanged%d, const FString&);\n\nvoid UCounter::Add(int32 Amount)\n{\n"
				 "\tconst int32 OldValue = Value;\n\tValue += Amount;\n\tif (Value != OldValue && OnValueChanged.IsBound())\n\t{\n"
				 "\t\tOnValueChanged.Broadcast(FString::Printf(TEXT(\"%%d -> %%d\"), OldValue, Value)); // %d\n\t}\n}\n```\n\n"),
			Section, Section);
		Text += TEXT("> A handler may remove itself while the delegate broadcasts; the others are still called.\n\n");
	}
	return Text;
}

FString MakeSampleParagraph(int32 Length)
{
	FString Text;
	for (int32 Number = 1; Text.Len() < Length; ++Number)
	{
		Text.Appendf(
			TEXT("Sentence %d of a paragraph says that *nothing* ends here, and that \u4f60\u597d, \u0645\u0631\u062d\u0628\u0627 and "
				 "`code` may stand in it as well. "),
			Number);
	}
	return Text;
}

FString MakeSampleCodeBlock(int32 Length)
{
	FString Text(TEXT("```cpp\n"));
	for (int32 Number = 1; Text.Len() < Length; ++Number)
	{
		Text.Appendf(TEXT("void UCounter::Add%d(int32 Amount)\n{\n\tValue += Amount; // %d\n}\n\n"), Number, Number);
	}
	return Text;
}

FString MakeSmallCodeBlocks(int32 Length)
{
	FString Text;
	for (int32 Number = 1; Text.Len() < Length; ++Number)
	{
		Text.Appendf(TEXT("```\nint %d;\n```\n"), Number);
	}
	return Text;
}
