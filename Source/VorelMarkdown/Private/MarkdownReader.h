// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <md4c.h>
#include <string_view>

// Receives a document in reading order. Text points into the source wherever it stands there unchanged.
class IMarkdownHandler
{
public:
	virtual ~IMarkdownHandler() = default;

	virtual void EnterBlock(MD_BLOCKTYPE Type, const void* Detail) = 0;
	virtual void LeaveBlock(MD_BLOCKTYPE Type) = 0;
	virtual void EnterSpan(MD_SPANTYPE Type) = 0;
	virtual void LeaveSpan(MD_SPANTYPE Type, const void* Detail) = 0;
	virtual void Text(MD_TEXTTYPE Type, std::string_view Text) = 0;
};

// CommonMark with tables, strikethrough, task lists and autolinks. The source must be what FMarkdownSource makes.
void ReadMarkdown(std::string_view Source, IMarkdownHandler& Handler);
