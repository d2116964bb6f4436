// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Commands/Commands.h"
#include "Framework/Commands/UICommandList.h"
#include "Support/Printers.h"

#include <gtest/gtest.h>

#define LOCTEXT_NAMESPACE "CommandsTest"

namespace
{
class FTestCommands : public TCommands<FTestCommands>
{
public:
	FTestCommands()
		: TCommands<FTestCommands>("TestContext", INVTEXT("Test commands"), NAME_None, "TestStyle")
	{
	}

	void RegisterCommands() override
	{
		UI_COMMAND(Open, "Open it", "Opens the thing", EUserInterfaceActionType::Button, FInputChord(), FInputChord());
	}

	TSharedPtr<FUICommandInfo> Open;
};
} // namespace

TEST(CommandsTest, HaveLocalisedLabelsAndAnIconOfTheirContext)
{
	FTestCommands::Register();
	const FUICommandInfo& Open = *FTestCommands::Get().Open;
	EXPECT_EQ(Open.GetIconStyleName(), FName("TestContext.Open"));
	EXPECT_TEXT(Open.GetLabel().ToString(), TEXT("Open it"));
	EXPECT_TEXT(FTextInspector::GetNamespace(Open.GetLabel()).GetValue(), TEXT("CommandsTest"));
	EXPECT_TEXT(FTextInspector::GetKey(Open.GetLabel()).GetValue(), TEXT("Open"));
	EXPECT_TEXT(Open.GetDescription().ToString(), TEXT("Opens the thing"));
	EXPECT_TEXT(FTextInspector::GetKey(Open.GetDescription()).GetValue(), TEXT("Open_ToolTip"));
}

class CommandListTest : public testing::Test
{
protected:
	FExecuteAction Count()
	{
		return FExecuteAction::CreateLambda([this] { ++NumExecuted; });
	}

	const TSharedRef<FUICommandList> List = MakeShared<FUICommandList>();
	const TSharedPtr<FUICommandInfo> Command = MakeShared<FUICommandInfo>();
	int32 NumExecuted = 0;
};

TEST_F(CommandListTest, AsksWhetherItMay)
{
	bool bMay = false;
	List->MapAction(Command, Count(), FCanExecuteAction::CreateLambda([&bMay] { return bMay; }));
	EXPECT_FALSE(List->CanExecuteAction(Command.ToSharedRef()));
	EXPECT_FALSE(List->ExecuteAction(Command.ToSharedRef()));
	bMay = true;
	EXPECT_TRUE(List->ExecuteAction(Command.ToSharedRef()));
	EXPECT_EQ(NumExecuted, 1);
}

TEST_F(CommandListTest, ALaterMappingReplacesTheEarlier)
{
	List->MapAction(Command, FExecuteAction::CreateLambda([] { ADD_FAILURE() << "The replaced action ran"; }));
	List->MapAction(Command, Count());
	List->ExecuteAction(Command.ToSharedRef());
	EXPECT_EQ(NumExecuted, 1);
}

#undef LOCTEXT_NAMESPACE
