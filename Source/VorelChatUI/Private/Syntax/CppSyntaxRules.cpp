// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Syntax/CppSyntaxRules.h"

const TArray<FString> CppOperatorRules = {TEXT("/*"), TEXT("*/"), TEXT("//"), TEXT("\""), TEXT("'"), TEXT("::"), TEXT(":"), TEXT("+="),
	TEXT("++"), TEXT("+"), TEXT("--"), TEXT("-="), TEXT("-"), TEXT("("), TEXT(")"), TEXT("["), TEXT("]"), TEXT("."), TEXT("->"), TEXT("!="),
	TEXT("!"), TEXT("&="), TEXT("~"), TEXT("&"), TEXT("*="), TEXT("*"), TEXT("->"), TEXT("/="), TEXT("/"), TEXT("%="), TEXT("%"),
	TEXT("<<="), TEXT("<<"), TEXT("<="), TEXT("<"), TEXT(">>="), TEXT(">>"), TEXT(">="), TEXT(">"), TEXT("=="), TEXT("&&"), TEXT("&"),
	TEXT("^="), TEXT("^"), TEXT("|="), TEXT("||"), TEXT("|"), TEXT("?"), TEXT("="), TEXT(","), TEXT("{"), TEXT("}"), TEXT(";")};

const TArray<FString> CppKeywordRules = {TEXT("alignas"), TEXT("alignof"), TEXT("and"), TEXT("and_eq"), TEXT("asm"), TEXT("auto"),
	TEXT("bitand"), TEXT("bitor"), TEXT("bool"), TEXT("break"), TEXT("case"), TEXT("catch"), TEXT("char"), TEXT("char16_t"),
	TEXT("char32_t"), TEXT("class"), TEXT("compl"), TEXT("concept"), TEXT("const"), TEXT("constexpr"), TEXT("const_cast"), TEXT("continue"),
	TEXT("decltype"), TEXT("default"), TEXT("delete"), TEXT("do"), TEXT("double"), TEXT("dynamic_cast"), TEXT("else"), TEXT("enum"),
	TEXT("explicit"), TEXT("export"), TEXT("extern"), TEXT("false"), TEXT("float"), TEXT("for"), TEXT("friend"), TEXT("goto"), TEXT("if"),
	TEXT("inline"), TEXT("int"), TEXT("long"), TEXT("mutable"), TEXT("namespace"), TEXT("new"), TEXT("noexcept"), TEXT("not"),
	TEXT("not_eq"), TEXT("nullptr"), TEXT("operator"), TEXT("or"), TEXT("or_eq"), TEXT("private"), TEXT("protected"), TEXT("public"),
	TEXT("register"), TEXT("reinterpret_cast"), TEXT("requires"), TEXT("return"), TEXT("short"), TEXT("signed"), TEXT("sizeof"),
	TEXT("static"), TEXT("static_assert"), TEXT("static_cast"), TEXT("struct"), TEXT("switch"), TEXT("template"), TEXT("this"),
	TEXT("thread_local"), TEXT("throw"), TEXT("true"), TEXT("try"), TEXT("typedef"), TEXT("typeid"), TEXT("typename"), TEXT("union"),
	TEXT("unsigned"), TEXT("using"), TEXT("virtual"), TEXT("void"), TEXT("volatile"), TEXT("wchar_t"), TEXT("while"), TEXT("xor"),
	TEXT("xor_eq")};

const TArray<FString> CppPreProcessorRules = {TEXT("#include"), TEXT("#define"), TEXT("#ifndef"), TEXT("#ifdef"), TEXT("#if"),
	TEXT("#else"), TEXT("#endif"), TEXT("#pragma"), TEXT("#undef")};

TSharedRef<FSyntaxTokenizer> CreateCppTokenizer()
{
	TArray<FSyntaxTokenizer::FRule> Rules;
	for (const TArray<FString>* Table : {&CppOperatorRules, &CppKeywordRules, &CppPreProcessorRules})
	{
		for (const FString& MatchText : *Table)
		{
			Rules.Emplace(MatchText);
		}
	}
	return FSyntaxTokenizer::Create(MoveTemp(Rules));
}
