// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkdownReader.h"

#include "CoreMinimal.h"

namespace
{
IMarkdownHandler& HandlerOf(void* UserData)
{
	return *static_cast<IMarkdownHandler*>(UserData);
}

int OnEnterBlock(MD_BLOCKTYPE Type, void* Detail, void* UserData)
{
	HandlerOf(UserData).EnterBlock(Type, Detail);
	return 0;
}

int OnLeaveBlock(MD_BLOCKTYPE Type, void*, void* UserData)
{
	HandlerOf(UserData).LeaveBlock(Type);
	return 0;
}

int OnEnterSpan(MD_SPANTYPE Type, void*, void* UserData)
{
	HandlerOf(UserData).EnterSpan(Type);
	return 0;
}

int OnLeaveSpan(MD_SPANTYPE Type, void* Detail, void* UserData)
{
	HandlerOf(UserData).LeaveSpan(Type, Detail);
	return 0;
}

int OnText(MD_TEXTTYPE Type, const MD_CHAR* Text, MD_SIZE Size, void* UserData)
{
	HandlerOf(UserData).Text(Type, std::string_view(Text, Size));
	return 0;
}
} // namespace

void ReadMarkdown(std::string_view Source, IMarkdownHandler& Handler)
{
	MD_PARSER Parser = {};
	Parser.flags = MD_FLAG_TABLES | MD_FLAG_STRIKETHROUGH | MD_FLAG_TASKLISTS | MD_FLAG_PERMISSIVEAUTOLINKS;
	Parser.enter_block = OnEnterBlock;
	Parser.leave_block = OnLeaveBlock;
	Parser.enter_span = OnEnterSpan;
	Parser.leave_span = OnLeaveSpan;
	Parser.text = OnText;

	// The parser counts in 32 bits; apart from that only a lack of memory makes it fail.
	check(Source.size() <= MAX_uint32);
	verify(md_parse(Source.data(), static_cast<MD_SIZE>(Source.size()), &Parser, &Handler) == 0);
}
