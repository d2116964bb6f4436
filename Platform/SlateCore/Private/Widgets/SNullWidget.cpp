// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/SNullWidget.h"

#include "Widgets/SLeafWidget.h"

namespace
{
class SNullWidgetContent final : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SNullWidgetContent) { _Visibility = EVisibility::HitTestInvisible; }
	SLATE_END_ARGS()

	SNullWidgetContent() { bKnowsNoParent = true; }
	void Construct(const FArguments&) {}

protected:
	virtual FVector2D ComputeDesiredSize(float) const override { return FVector2D(0.0, 0.0); }
	virtual int32 OnPaint(const FPaintArgs&, const FGeometry&, const FSlateRect&, FSlateWindowElementList&, int32 LayerId,
		const FWidgetStyle&, bool) const override
	{
		return LayerId;
	}
};
} // namespace

TSharedRef<SWidget> SNullWidget::NullWidget = MakeSlateDecl<SNullWidgetContent>(TEXT("SNullWidget")) <<= SNullWidgetContent::FArguments();
