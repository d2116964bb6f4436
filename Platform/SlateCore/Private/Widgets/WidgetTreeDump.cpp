// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/WidgetTreeDump.h"

#include "Widgets/SWindow.h"

namespace
{
FString FormatNumber(double Number)
{
	const double Hundredths = std::round(Number * 100.0);
	FString Text = FString::Printf(TEXT("%.2f"), Hundredths == 0.0 ? 0.0 : Hundredths / 100.0);
	while (Text.EndsWith(TEXT("0")))
	{
		Text = Text.LeftChop(1);
	}
	return Text.EndsWith(TEXT(".")) ? Text.LeftChop(1) : Text;
}

/** What a line inherits from the widgets around it. */
struct FSurroundings
{
	int32 Depth = 0;
	bool bEnabled = true;
	bool bCollapsed = false;
};

class FDumper
{
public:
	explicit FDumper(float InScale)
		: Scale(InScale)
	{
	}

	void Add(SWidget& Widget, const FGeometry& Geometry, const FSurroundings& Around);

	FString Text;

private:
	void AddLine(SWidget& Widget, const FGeometry& Geometry, const FSurroundings& Self);
	void AddChildren(SWidget& Widget, const FGeometry& Geometry, const FSurroundings& Self);
	void AddNamed(const TCHAR* Label, const FString& Value);

	float Scale;
};

void FDumper::Add(SWidget& Widget, const FGeometry& Geometry, const FSurroundings& Around)
{
	const FSurroundings Self{
		Around.Depth, Around.bEnabled && Widget.IsEnabled(), Around.bCollapsed || Widget.GetVisibility() == EVisibility::Collapsed};
	AddLine(Widget, Self.bCollapsed ? FGeometry() : Geometry, Self);
	AddChildren(Widget, Geometry, {Self.Depth + 1, Self.bEnabled, Self.bCollapsed});
}

void FDumper::AddLine(SWidget& Widget, const FGeometry& Geometry, const FSurroundings& Self)
{
	const FVector2D Position = Geometry.GetAccumulatedLayoutTransform().Translation / Scale;
	const FVector2D Size = Geometry.GetAbsoluteSize() / Scale;
	Text += FString::ChrN(Self.Depth * 2, u' ') + Widget.GetTypeAsString() + TEXT(" ") + FormatNumber(Position.X) + TEXT(",") +
			FormatNumber(Position.Y) + TEXT(" ") + FormatNumber(Size.X) + TEXT("x") + FormatNumber(Size.Y);
	Text += Widget.GetVisibility() == EVisibility::Collapsed ? TEXT(" collapsed") : TEXT("");
	Text += Widget.GetVisibility() == EVisibility::Hidden ? TEXT(" hidden") : TEXT("");
	Text += Self.bEnabled ? TEXT("") : TEXT(" disabled");
	Text += Widget.HasKeyboardFocus() ? TEXT(" focused") : TEXT("");
	if (const FString Shown = Widget.GetShownText(); !Shown.IsEmpty())
	{
		Text += TEXT(" ") + FWidgetTreeDump::Quote(Shown);
	}
	AddNamed(TEXT(" hint="), Widget.GetHint());
	AddNamed(TEXT(" name="), Widget.GetAccessibleText().ToString());
	if (Widget.GetTag() != NAME_None)
	{
		Text += TEXT(" tag=") + Widget.GetTag().ToString();
	}
	Text += u'\n';
}

void FDumper::AddNamed(const TCHAR* Label, const FString& Value)
{
	if (!Value.IsEmpty())
	{
		Text += Label + FWidgetTreeDump::Quote(Value);
	}
}

void FDumper::AddChildren(SWidget& Widget, const FGeometry& Geometry, const FSurroundings& Around)
{
	FArrangedChildren Placed(EVisibility::All);
	if (!Around.bCollapsed)
	{
		Widget.ArrangeChildren(Geometry, Placed);
	}
	// Most panels place their children in their order, and skip some.
	int32 NextPlaced = 0;
	FChildren& Children = *Widget.GetChildren();
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const TSharedRef<SWidget> Child = Children.GetChildAt(Index);
		int32 Found = NextPlaced < Placed.Num() && Placed[NextPlaced].Widget == Child ? NextPlaced : INDEX_NONE;
		if (Found == INDEX_NONE)
		{
			Found = Placed.GetInternalArray().IndexOfByPredicate([&Child](const FArrangedWidget& Each) { return Each.Widget == Child; });
		}
		NextPlaced = Found == INDEX_NONE ? NextPlaced : Found + 1;
		Add(*Child, Found == INDEX_NONE ? FGeometry() : Placed[Found].Geometry, Around);
	}
}
} // namespace

FString FWidgetTreeDump::Dump(const SWindow& Window)
{
	FDumper Dumper(Window.GetDPIScaleFactor());
	const TSharedRef<SWidget>& Content = Window.GetContent();
	Dumper.Add(*Content, Content->GetCachedGeometry(), FSurroundings());
	if (const TSharedPtr<SWidget> Popup = Window.GetPopup())
	{
		Dumper.Add(*Popup, Popup->GetCachedGeometry(), FSurroundings());
	}
	return Dumper.Text;
}

FString FWidgetTreeDump::Quote(const FString& Text)
{
	FString Quoted = TEXT("\"");
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		switch (Text[Index])
		{
		case u'\n':
			Quoted += TEXT("\\n");
			break;
		case u'\t':
			Quoted += TEXT("\\t");
			break;
		case u'"':
			Quoted += TEXT("\\\"");
			break;
		case u'\\':
			Quoted += TEXT("\\\\");
			break;
		default:
			Quoted += Text[Index];
		}
	}
	return Quoted + TEXT("\"");
}
