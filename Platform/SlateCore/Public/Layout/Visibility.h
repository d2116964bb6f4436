// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreTypes.h"

/** Whether a widget takes room, is drawn, and can be hit. */
struct EVisibility
{
	static const EVisibility Visible;
	/** Takes no room, is not ticked and gets no input. */
	static const EVisibility Collapsed;
	/** Keeps its room, but is neither drawn nor hit. */
	static const EVisibility Hidden;
	/** Drawn; neither it nor its children can be hit. */
	static const EVisibility HitTestInvisible;
	/** Drawn; its children can be hit, it itself cannot. */
	static const EVisibility SelfHitTestInvisible;
	/** As a filter: every one of them. */
	static const EVisibility All;

	constexpr EVisibility() = default;

	constexpr bool IsVisible() const { return (Value & Drawn) != 0; }
	constexpr bool IsHitTestVisible() const { return (Value & HitSelf) != 0; }
	constexpr bool AreChildrenHitTestVisible() const { return (Value & HitChildren) != 0; }
	constexpr bool operator==(const EVisibility&) const = default;

	/** Whether a widget of this visibility passes the filter. */
	static constexpr bool DoesVisibilityPassFilter(EVisibility Visibility, EVisibility Filter)
	{
		return (Visibility.Value & Filter.Value) != 0;
	}

private:
	enum : uint8
	{
		Drawn = 1 << 0,
		NotDrawn = 1 << 1,
		NoRoom = 1 << 2,
		HitSelf = 1 << 3,
		HitChildren = 1 << 4
	};

	constexpr explicit EVisibility(uint8 InValue)
		: Value(InValue)
	{
	}

	uint8 Value = Drawn | HitSelf | HitChildren;
};

inline constexpr EVisibility EVisibility::Visible{EVisibility::Drawn | EVisibility::HitSelf | EVisibility::HitChildren};
inline constexpr EVisibility EVisibility::Collapsed{EVisibility::NoRoom};
inline constexpr EVisibility EVisibility::Hidden{EVisibility::NotDrawn};
inline constexpr EVisibility EVisibility::HitTestInvisible{EVisibility::Drawn};
inline constexpr EVisibility EVisibility::SelfHitTestInvisible{EVisibility::Drawn | EVisibility::HitChildren};
inline constexpr EVisibility EVisibility::All{EVisibility::Drawn | EVisibility::NotDrawn | EVisibility::NoRoom};
