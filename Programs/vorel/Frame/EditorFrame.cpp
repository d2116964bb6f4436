// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Frame/EditorFrame.h"

#include "Frame/TabWell.h"
#include "Frame/ToolsMenu.h"
#include "Misc/Paths.h"
#include "QtConversion.h"

#include <QLabel>
#include <QLayout>
#include <QMenuBar>
#include <QStatusBar>

FEditorFrame::FEditorFrame(FDesktopApplication& Desktop, const FContentSize& ContentSize)
	: TabWell(new FTabWell(Desktop, ContentSize))
{
	setWindowTitle(QStringLiteral("Vorel AI"));
	setWindowIcon(QIcon(ToQString(FPaths::ProjectDir() / TEXT("Resources/Icon128.png"))));
	setCentralWidget(TabWell);
	// The window may be made as small as the user likes.
	layout()->setSizeConstraint(QLayout::SetNoConstraint);
	MakeMenus();
	MakeStatusLine();
	resize(sizeHint());
}

void FEditorFrame::MakeMenus()
{
	QMenu* const File = menuBar()->addMenu(tr("&File"));
	File->addAction(tr("&Close Tab"), QKeySequence(Qt::CTRL | Qt::Key_W), TabWell, &FTabWell::CloseForegroundTab);
	File->addSeparator();
	File->addAction(tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), this, &QWidget::close);
	ToolsMenus.Add(AddToolsMenu(TEXT("LevelEditor.MainMenu.Tools"), tr("&Tools")));
	ToolsMenus.Add(AddToolsMenu(TEXT("AssetEditor.BlueprintEditor.MainMenu.Tools"), tr("&Blueprint Tools")));
}

FToolsMenu* FEditorFrame::AddToolsMenu(const TCHAR* Path, const QString& Title)
{
	auto* const Menu = new FToolsMenu(Path, Title);
	Menu->setParent(this, Menu->windowFlags());
	menuBar()->addMenu(Menu);
	return Menu;
}

void FEditorFrame::MakeStatusLine()
{
	Notice = new QLabel;
	Notice->setTextFormat(Qt::PlainText);
	// A long notice is cut, and must not widen the window.
	Notice->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
	Assistant = new QLabel;
	Assistant->setTextFormat(Qt::PlainText);
	statusBar()->setSizeGripEnabled(false);
	statusBar()->addWidget(Notice, 1);
	statusBar()->addPermanentWidget(Assistant);
}

QSlateWidget* FEditorFrame::GetTabContent() const
{
	return TabWell->GetContent();
}

void FEditorFrame::ResizeTabContent(const FContentSize& Size)
{
	resize(size() + QSize(Size.Width, Size.Height) - TabWell->GetContentSize());
}

bool FEditorFrame::InvokeToolsEntry(const FString& Label, FString& OutProblem)
{
	QStringList Labels;
	for (FToolsMenu* const Menu : ToolsMenus)
	{
		QAction* const Entry = Menu->FindEntry(ToQString(Label));
		if (Entry && Entry->isEnabled())
		{
			Entry->trigger();
			return true;
		}
		for (const QAction* const Other : Menu->actions())
		{
			Labels += Other->isSeparator() ? QStringList() : QStringList(Other->text());
		}
	}
	OutProblem = FString::Printf(TEXT("no Tools menu has an entry %s that can be invoked; there are: %s"), *Label,
		*ToFString(Labels.isEmpty() ? tr("none") : Labels.join(QStringLiteral(", "))));
	return false;
}

void FEditorFrame::ShowNotice(const FString& Text)
{
	Notice->setText(ToQString(Text));
	Notice->setToolTip(ToQString(Text));
}

void FEditorFrame::SetAssistantName(const FString& Name)
{
	Assistant->setText(ToQString(Name));
}
