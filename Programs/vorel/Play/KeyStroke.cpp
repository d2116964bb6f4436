// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Play/KeyStroke.h"

#include "QtConversion.h"

namespace
{
struct FNamedKey
{
	const TCHAR* Name;
	Qt::Key Key;
	const char* Text = "";
};

const FNamedKey NamedKeys[] = {
	{TEXT("Enter"), Qt::Key_Return, "\r"},
	{TEXT("Return"), Qt::Key_Return, "\r"},
	{TEXT("Escape"), Qt::Key_Escape, "\x1b"},
	{TEXT("Esc"), Qt::Key_Escape, "\x1b"},
	{TEXT("Tab"), Qt::Key_Tab, "\t"},
	{TEXT("Space"), Qt::Key_Space, " "},
	{TEXT("Backspace"), Qt::Key_Backspace, "\b"},
	{TEXT("Delete"), Qt::Key_Delete, "\x7f"},
	{TEXT("Insert"), Qt::Key_Insert},
	{TEXT("Home"), Qt::Key_Home},
	{TEXT("End"), Qt::Key_End},
	{TEXT("PageUp"), Qt::Key_PageUp},
	{TEXT("PageDown"), Qt::Key_PageDown},
	{TEXT("Left"), Qt::Key_Left},
	{TEXT("Right"), Qt::Key_Right},
	{TEXT("Up"), Qt::Key_Up},
	{TEXT("Down"), Qt::Key_Down},
};

struct FNamedModifier
{
	const TCHAR* Prefix;
	Qt::KeyboardModifier Modifier;
};

const FNamedModifier NamedModifiers[] = {
	{TEXT("Shift+"), Qt::ShiftModifier},
	{TEXT("Ctrl+"), Qt::ControlModifier},
	{TEXT("Alt+"), Qt::AltModifier},
	{TEXT("Meta+"), Qt::MetaModifier},
};

// Takes one modifier from the beginning of the name; nothing where it begins with none.
Qt::KeyboardModifiers TakeModifier(FString& Name)
{
	for (const FNamedModifier& Named : NamedModifiers)
	{
		if (Name.RemoveFromStart(Named.Prefix))
		{
			return Named.Modifier;
		}
	}
	return Qt::NoModifier;
}

bool SetNamedKey(FKeyStroke& Stroke, const FString& Name)
{
	for (const FNamedKey& Named : NamedKeys)
	{
		if (Name == Named.Name)
		{
			Stroke.Key = Named.Key;
			Stroke.Text = QString::fromLatin1(Named.Text);
			return true;
		}
	}
	return false;
}

bool SetFunctionKey(FKeyStroke& Stroke, FString Name)
{
	constexpr int LastFunctionKey = 12;
	bool bNumber = false;
	const int Number = Name.RemoveFromStart(TEXT("F")) ? ToQString(Name).toInt(&bNumber) : 0;
	Stroke.Key = static_cast<Qt::Key>(Qt::Key_F1 + Number - 1);
	return bNumber && Number >= 1 && Number <= LastFunctionKey;
}

bool SetCharacterKey(FKeyStroke& Stroke, const FString& Name)
{
	const QChar Character = Name.Len() == 1 ? QChar(Name[0]) : QChar();
	if (Character.unicode() <= ' ' || Character.unicode() > '~')
	{
		return false;
	}
	Stroke.Key = static_cast<Qt::Key>(Character.toUpper().unicode());
	Stroke.Text = Stroke.Modifiers.testFlag(Qt::ShiftModifier) ? Character.toUpper() : Character.toLower();
	return true;
}
} // namespace

TOptional<FKeyStroke> FKeyStroke::FromName(const FString& Name)
{
	FKeyStroke Stroke;
	FString Key = Name;
	for (Qt::KeyboardModifiers Modifier; (Modifier = TakeModifier(Key)) != Qt::NoModifier;)
	{
		Stroke.Modifiers |= Modifier;
	}
	if (!SetNamedKey(Stroke, Key) && !SetFunctionKey(Stroke, Key) && !SetCharacterKey(Stroke, Key))
	{
		return NullOpt;
	}
	if (Stroke.Modifiers & ~Qt::KeyboardModifiers(Qt::ShiftModifier))
	{
		Stroke.Text.clear();
	}
	return Stroke;
}
