// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/Probe.h"
#include "Support/UserDriver.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SNullWidget.h"

#include <gtest/gtest.h>

namespace
{
template <typename ItemType>
class SListProbe : public SProbe
{
};

class SHintProbe : public SProbe
{
public:
	FString GetHint() const override { return TEXT("Say \"hi\""); }
};
} // namespace

TEST(WidgetTreeDump, WritesOneWidgetALineWithWhatAppliesToIt)
{
	const TSharedRef<SHorizontalBox> Row = SNew(SHorizontalBox).Visibility(EVisibility::Collapsed);
	Row->AddSlot().AutoWidth()[SNew(SProbe)];
	const TSharedRef<SProbe> Focused = SNew(SHintProbe).Focusable(true).Text(TEXT("a\tb\\\nc")).Tag(TEXT("Here"));
	// clang-format off
	FUserDriver User(
		SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight().Padding(1.5f, 0.0f, 0.0f, 0.375f)[SNew(SListProbe<TArray<int32>>)]
		+ SVerticalBox::Slot().AutoHeight()[SNew(SProbe).Visibility(EVisibility::Hidden).IsEnabled(false)]
		+ SVerticalBox::Slot().AutoHeight()[Row]
		+ SVerticalBox::Slot().AutoHeight().Padding(10.0f)
		+ SVerticalBox::Slot().AutoHeight()[Focused]
		+ SVerticalBox::Slot().AutoHeight()[SNew(SProbe).AccessibleText(FText::FromString(TEXT("Send")))]
		+ SVerticalBox::Slot().AutoHeight()[SNew(SHorizontalBox).IsEnabled(false) + SHorizontalBox::Slot()[SNew(SProbe)]],
		FVector2D(100.0, 100.0), 2.0f, EDriverFonts::Even);
	// clang-format on
	User.Press(TEXT("Tab"));
	EXPECT_EQ(User.Tree(), TEXT("SVerticalBox 0,0 100x100\n"
								"  SListProbe 1.5,0 98.5x10\n"
								"  SProbe 0,10.38 100x10 hidden disabled\n"
								"  SHorizontalBox 0,0 0x0 collapsed\n"
								"    SProbe 0,0 0x0\n"
								"  SNullWidget 10,30.38 80x0\n"
								"  SHintProbe 0,40.38 100x10 focused \"a\\tb\\\\\\nc\" hint=\"Say \\\"hi\\\"\" tag=Here\n"
								"  SProbe 0,50.38 100x10 name=\"Send\"\n"
								"  SHorizontalBox 0,60.38 100x10 disabled\n"
								"    SProbe 0,60.38 100x10 disabled\n"));
}
