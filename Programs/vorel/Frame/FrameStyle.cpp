// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Frame/FrameStyle.h"

#include "Misc/Paths.h"
#include "QtConversion.h"
#include "Styling/AppStyle.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>

namespace
{
QColor GetColor(const TCHAR* Name)
{
	const FColor Color = FAppStyle::GetSlateColor(Name).GetSpecifiedColor().ToFColor(true);
	return QColor(Color.R, Color.G, Color.B);
}

QPalette MakePalette()
{
	QPalette Palette(GetColor(TEXT("Colors.Header")), GetColor(TEXT("Colors.Header")));
	for (const QPalette::ColorRole Role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
	{
		Palette.setColor(Role, GetColor(TEXT("Colors.Foreground")));
	}
	Palette.setColor(QPalette::Base, GetColor(TEXT("Colors.Background")));
	Palette.setColor(QPalette::ToolTipBase, GetColor(TEXT("Colors.Dropdown")));
	Palette.setColor(QPalette::Highlight, GetColor(TEXT("Colors.Primary")));
	Palette.setColor(QPalette::HighlightedText, GetColor(TEXT("Colors.White")));
	Palette.setColor(QPalette::Disabled, QPalette::Text, GetColor(TEXT("Colors.Hover2")));
	return Palette;
}

// Names of the editor's colors stand in for them, in @...@.
QString FillInColors(QString Sheet)
{
	for (const TCHAR* const Name : {TEXT("Black"), TEXT("White"), TEXT("Background"), TEXT("Header"), TEXT("Dropdown"), TEXT("Foreground"),
			 TEXT("ForegroundHover"), TEXT("Primary"), TEXT("Hover"), TEXT("Hover2"), TEXT("Secondary")})
	{
		const FString Full = FString(TEXT("Colors.")) + Name;
		Sheet.replace(u'@' + ToQString(Name) + u'@', GetColor(*Full).name());
	}
	return Sheet.replace(QLatin1String("@Icons@"), ToQString(FPaths::EngineContentDir() / TEXT("Icons")));
}

const QString Sheet = QStringLiteral(R"(
QMainWindow, QStatusBar { background: @Header@; color: @Foreground@; }
QMenuBar { background: @Black@; color: @Foreground@; padding: 2px 4px; }
QMenuBar::item { padding: 5px 10px; border-radius: 4px; background: transparent; }
QMenuBar::item:selected { background: @Hover@; color: @White@; }
QMenu { background: @Dropdown@; color: @Foreground@; border: 1px solid @Hover@; padding: 4px; }
QMenu::item { padding: 6px 28px 6px 10px; border-radius: 3px; }
QMenu::item:selected { background: @Primary@; color: @White@; }
QMenu::item:disabled { color: @Hover2@; }
QMenu::icon { padding-left: 8px; }
QMenu::separator { height: 1px; background: @Hover@; margin: 4px 6px; }
QTabBar { background: @Black@; qproperty-drawBase: 0; }
QTabBar::tab { background: @Black@; color: @Foreground@; padding: 7px 10px 7px 12px; border-top: 2px solid transparent; }
QTabBar::tab:selected { background: @Header@; color: @White@; border-top: 2px solid @Primary@; }
QTabBar::tab:hover:!selected { background: @Secondary@; }
QTabBar::close-button { image: url("@Icons@/X.svg"); width: 10px; height: 10px; margin: 2px; }
QTabBar::close-button:hover { background: @Hover@; border-radius: 3px; }
QStatusBar { border-top: 1px solid @Black@; }
QStatusBar::item { border: none; }
QStatusBar QLabel { color: @Foreground@; padding: 2px 8px; }
QToolTip { background: @Dropdown@; color: @Foreground@; border: 1px solid @Hover@; padding: 4px; }
#TabWell { background: @Black@; }
#NoTab { background: @Background@; color: @Foreground@; }
)");
} // namespace

void FrameStyle::Apply(QApplication& Application)
{
	constexpr int FontSizeInUnits = 13;
	QFont Font(QStringLiteral("Roboto"));
	Font.setPixelSize(FontSizeInUnits);
	Application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
	Application.setFont(Font);
	Application.setPalette(MakePalette());
	Application.setStyleSheet(FillInColors(Sheet));
}
