// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Decorators/CodeBlockStyle.h"
#include "Editor.h"
#include "Styling/StyleSheets/VorelAIStyle.h"
#include "Styling/StyleSheets/VorelMarkdownStyle.h"
#include <gtest/gtest.h>

namespace
{

// The tests of the module's widgets run inside an editor, with the styles that the module holds up.
class FEditorEnvironment : public testing::Environment
{
public:
	void SetUp() override
	{
		UEditorEngine::Startup();
		FVorelAIStyle::Initialize();
		FVorelMarkdownStyle::Initialize();
		FCodeBlockStyle::Initialize();
	}

	void TearDown() override { UEditorEngine::Shutdown(); }
};

testing::Environment* const Environment = testing::AddGlobalTestEnvironment(new FEditorEnvironment);

} // namespace
