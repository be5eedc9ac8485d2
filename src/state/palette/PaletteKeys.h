#pragma once

#include "commands/KeyPress.h"

/// What the palette takes from a press before the search field sees it.
struct PaletteKey
{
    enum class Kind {
        /// Run the highlighted row.
        Run,
        /// The same, but an issue opens in a window of its own.
        RunInWindow,
        /// Clear the query, or leave the innermost thing.
        Back,
        Down,
        Up,
        /// Run the row that bears the digit; passed on where none does.
        Digit
    };

    Kind kind;
    /// 1 to 9; 0 for other kinds.
    int digit = 0;

    bool operator==(const PaletteKey &) const = default;
};

/// Whether digits pick rows: in a picker while nothing is searched for.
enum class PaletteDigits { PickRows, AreTyped };

/// Nothing for a press that is left to the search field.
std::optional<PaletteKey> paletteKey(const KeyPress &press, PaletteDigits digits);
