// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "HostSupport.h"
#include "Rendering/SlatePainter.h"
#include "Widgets/SBoxPanel.h"

#include <random>

static QImage PaintAnew(const FTestHost& Host)
{
	QImage Picture = Host.Widget.GetPicture();
	Picture.fill(Qt::magenta);
	FSlatePainter().Paint(Picture, *Host.Window->GetDisplayList(), FSlateRect(0.0f, 0.0f, Picture.width(), Picture.height()));
	return Picture;
}

TEST(Damage, RepaintingWhatChangedIsAsGoodAsRepaintingAll)
{
	TArray<TSharedRef<SProbe>> Probes;
	const TSharedRef<SVerticalBox> Rows = SNew(SVerticalBox);
	for (int Row = 0; Row < 5; ++Row)
	{
		const TSharedRef<SHorizontalBox> Columns = SNew(SHorizontalBox);
		for (int Column = 0; Column < 5; ++Column)
		{
			Probes.Add(SNew(SProbe).Size(FVector2D(40.0, 20.0)));
			Columns->AddSlot().AutoWidth().Padding(1.3f)[Probes.Last()];
		}
		Rows->AddSlot().AutoHeight()[Columns];
	}
	FTestHost Host(Rows);
	Host.Widget.resize(300, 160);
	RunFrames();
	std::mt19937 Random(7);
	for (int Step = 0; Step < 40; ++Step)
	{
		SProbe& Probe = *Probes[static_cast<int32>(Random() % Probes.Num())];
		switch (Random() % 4)
		{
		case 0:
			Probe.SetVisibility(Random() % 2 ? EVisibility::Collapsed : EVisibility::Visible);
			break;
		case 1:
			Probe.SetVisibility(EVisibility::Hidden);
			break;
		case 2:
			Probe.SetRenderTransform(
				TOptional<FSlateRenderTransform>(FSlateRenderTransform(FVector2D(Random() % 9 - 4.0, Random() % 9 * 0.7))));
			break;
		default:
			Probe.SetColor(FLinearColor(Random() % 5 * 0.25f, Random() % 5 * 0.25f, Random() % 5 * 0.25f, 0.7f));
		}
		RunFrames();
		ASSERT_EQ(Host.Widget.GetPicture(), PaintAnew(Host)) << "after step " << Step;
	}
}
