#pragma once

#include "commands/KeyPress.h"

/// A key press that the palette handles before the search field receives it.
struct PaletteKey
{
    enum class Kind {
        /// Run the highlighted row.
        Run,
        /// The same, but open an issue in a separate window.
        RunInWindow,
        /// Clear the query, or go back one level.
        Back,
        Down,
        Up,
        /// Run the row with the digit; if there is none, the press is passed on.
        Digit
    };

    Kind kind;
    /// 1 to 9; 0 for other kinds.
    int digit = 0;

    bool operator==(const PaletteKey &) const = default;
};

/// Whether digits pick rows. They do so in a picker while the query is empty.
enum class PaletteDigits { PickRows, AreTyped };

/// The palette's key for a press; nothing for a press that the search field handles.
std::optional<PaletteKey> paletteKey(const KeyPress &press, PaletteDigits digits);
