// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Layout/Clipping.h"
#include "Layout/Visibility.h"
#include "Rendering/SlateRenderTransform.h"

class SNullWidget;
class SWidget;

/** Makes a widget: SNew(SButton).OnClicked(...)[ ... ]. */
#define SNew(...) MakeSlateDecl<__VA_ARGS__>(TEXT("") #__VA_ARGS__) <<= typename __VA_ARGS__::FArguments()

/** As SNew, and puts the widget into a shared pointer before its Construct runs. */
#define SAssignNew(ExposeAs, ...) MakeSlateDecl<__VA_ARGS__>(TEXT("") #__VA_ARGS__).Expose(ExposeAs) <<= typename __VA_ARGS__::FArguments()

#define SLATE_BEGIN_ARGS(InWidgetType)                                                                                                     \
public:                                                                                                                                    \
	struct FArguments : public TSlateBaseNamedArgs<InWidgetType>                                                                           \
	{                                                                                                                                      \
		using WidgetArgsType = FArguments;                                                                                                 \
		FArguments()

#define SLATE_END_ARGS()                                                                                                                   \
	}                                                                                                                                      \
	;

/** A plain value. */
#define SLATE_ARGUMENT(ArgType, ArgName)                                                                                                   \
	ArgType _##ArgName{};                                                                                                                  \
	SLATE_PRIVATE_ARGUMENT_SETTER(ArgType, ArgName)

/** A plain value with a default: SLATE_ARGUMENT_DEFAULT(float, Size){6.0f}; */
#define SLATE_ARGUMENT_DEFAULT(ArgType, ArgName)                                                                                           \
	SLATE_PRIVATE_ARGUMENT_SETTER(ArgType, ArgName)                                                                                        \
	ArgType _##ArgName

#define SLATE_PRIVATE_ARGUMENT_SETTER(ArgType, ArgName)                                                                                    \
	WidgetArgsType& ArgName(ArgType InArg)                                                                                                 \
	{                                                                                                                                      \
		_##ArgName = MoveTemp(InArg);                                                                                                      \
		return static_cast<WidgetArgsType&>(*this);                                                                                        \
	}

/** A value, or a getter of the widget that is given. */
#define SLATE_ATTRIBUTE(AttrType, AttrName)                                                                                                \
	TAttribute<AttrType> _##AttrName;                                                                                                      \
	SLATE_PRIVATE_ATTRIBUTE_SETTERS(AttrType, AttrName)

#define SLATE_PRIVATE_ATTRIBUTE_SETTERS(AttrType, AttrName)                                                                                \
	WidgetArgsType& AttrName(TAttribute<AttrType> InAttribute)                                                                             \
	{                                                                                                                                      \
		_##AttrName = MoveTemp(InAttribute);                                                                                               \
		return static_cast<WidgetArgsType&>(*this);                                                                                        \
	}                                                                                                                                      \
	template <class UserClass>                                                                                                             \
	WidgetArgsType& AttrName(UserClass* InObject, std::type_identity_t<AttrType (UserClass::*)() const> InGetter)                          \
	{                                                                                                                                      \
		return AttrName(TAttribute<AttrType>::CreateSP(InObject, InGetter));                                                               \
	}                                                                                                                                      \
	template <typename FunctorType>                                                                                                        \
	WidgetArgsType& AttrName##_Lambda(FunctorType&& InFunctor)                                                                             \
	{                                                                                                                                      \
		return AttrName(TAttribute<AttrType>::CreateLambda(::Forward<FunctorType>(InFunctor)));                                            \
	}

/** A delegate; further arguments of the setter are handed to the method at each call. */
#define SLATE_EVENT(DelegateName, EventName)                                                                                               \
	DelegateName _##EventName;                                                                                                             \
	WidgetArgsType& EventName(const DelegateName& InDelegate)                                                                              \
	{                                                                                                                                      \
		_##EventName = InDelegate;                                                                                                         \
		return static_cast<WidgetArgsType&>(*this);                                                                                        \
	}                                                                                                                                      \
	template <class UserClass, typename MethodType, typename... PayloadTypes>                                                              \
	WidgetArgsType& EventName(UserClass* InObject, MethodType InMethod, PayloadTypes... Payload)                                           \
	{                                                                                                                                      \
		return EventName(DelegateName::CreateSP(InObject, InMethod, MoveTemp(Payload)...));                                                \
	}                                                                                                                                      \
	template <typename FunctorType>                                                                                                        \
	WidgetArgsType& EventName##_Lambda(FunctorType&& InFunctor)                                                                            \
	{                                                                                                                                      \
		return EventName(DelegateName::CreateLambda(::Forward<FunctorType>(InFunctor)));                                                   \
	}

/** A pointer to a widget style, which must outlive the widget. */
#define SLATE_STYLE_ARGUMENT(ArgType, ArgName)                                                                                             \
	const ArgType* _##ArgName = nullptr;                                                                                                   \
	WidgetArgsType& ArgName(const ArgType* InArg)                                                                                          \
	{                                                                                                                                      \
		_##ArgName = InArg;                                                                                                                \
		return static_cast<WidgetArgsType&>(*this);                                                                                        \
	}

/** A place for one widget: SNew(SBox).Name()[ ... ]. */
#define SLATE_NAMED_SLOT(DeclarationType, SlotName)                                                                                        \
	TSlateNamedSlot<DeclarationType> SlotName()                                                                                            \
	{                                                                                                                                      \
		return TSlateNamedSlot<DeclarationType>(*this, _##SlotName);                                                                       \
	}                                                                                                                                      \
	FSlateSlotContent _##SlotName;

/** The place that brackets behind the arguments fill: SNew(SBox)[ ... ]. */
#define SLATE_DEFAULT_SLOT(DeclarationType, SlotName)                                                                                      \
	SLATE_NAMED_SLOT(DeclarationType, SlotName)                                                                                            \
	DeclarationType& operator[](const TSharedRef<SWidget>& InChild)                                                                        \
	{                                                                                                                                      \
		_##SlotName.Widget = InChild;                                                                                                      \
		return *this;                                                                                                                      \
	}

/** Any number of slots: SNew(SOverlay) + SOverlay::Slot()[ ... ]. */
#define SLATE_SLOT_ARGUMENT(SlotType, SlotName)                                                                                            \
	mutable TArray<SlotType::FSlotArguments> _##SlotName;                                                                                  \
	WidgetArgsType& operator+(SlotType::FSlotArguments&& InSlot)                                                                           \
	{                                                                                                                                      \
		_##SlotName.Add(MoveTemp(InSlot));                                                                                                 \
		return *this;                                                                                                                      \
	}                                                                                                                                      \
	WidgetArgsType& operator+(SlotType::FSlotArguments& InSlot)                                                                            \
	{                                                                                                                                      \
		return *this + MoveTemp(InSlot);                                                                                                   \
	}

/** The widget of a named slot; SNullWidget::NullWidget until one is given. */
struct FSlateSlotContent
{
	FSlateSlotContent();

	TSharedRef<SWidget> Widget;
};

template <class DeclarationType>
class TSlateNamedSlot
{
public:
	TSlateNamedSlot(DeclarationType& InDeclaration, FSlateSlotContent& InContent)
		: Declaration(InDeclaration)
		, Content(InContent)
	{
	}

	DeclarationType& operator[](const TSharedRef<SWidget>& InChild)
	{
		Content.Widget = InChild;
		return Declaration;
	}

private:
	DeclarationType& Declaration;
	FSlateSlotContent& Content;
};

/** The arguments that every widget has. */
struct FSlateBaseNamedArgs
{
	TAttribute<EVisibility> _Visibility;
	TAttribute<bool> _IsEnabled;
	TAttribute<FText> _ToolTipText;
	TAttribute<FText> _AccessibleText;
	TAttribute<TOptional<FSlateRenderTransform>> _RenderTransform;
	TAttribute<FVector2D> _RenderTransformPivot;
	EWidgetClipping _Clipping = EWidgetClipping::Inherit;
	FName _Tag;
};

template <class InWidgetType>
struct TSlateBaseNamedArgs : public FSlateBaseNamedArgs
{
	using WidgetArgsType = typename InWidgetType::FArguments;

	SLATE_PRIVATE_ATTRIBUTE_SETTERS(EVisibility, Visibility)
	SLATE_PRIVATE_ATTRIBUTE_SETTERS(bool, IsEnabled)
	SLATE_PRIVATE_ATTRIBUTE_SETTERS(FText, ToolTipText)
	SLATE_PRIVATE_ATTRIBUTE_SETTERS(FText, AccessibleText)
	SLATE_PRIVATE_ATTRIBUTE_SETTERS(TOptional<FSlateRenderTransform>, RenderTransform)
	SLATE_PRIVATE_ATTRIBUTE_SETTERS(FVector2D, RenderTransformPivot)
	SLATE_PRIVATE_ARGUMENT_SETTER(EWidgetClipping, Clipping)
	SLATE_PRIVATE_ARGUMENT_SETTER(FName, Tag)
};
