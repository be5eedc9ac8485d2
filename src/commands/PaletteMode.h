#pragma once

#include "commands/Command.h"

#include <QStringList>

#include <variant>

/// What the open palette shows: the commands, or a picker for some issues.
struct PaletteMode
{
    struct Root
    {
        bool operator==(const Root &) const = default;
    };
    struct Picker
    {
        PickerKind kind = PickerKind::Status;
        /// The keys of the issues that the picker edits.
        QStringList keys;

        bool operator==(const Picker &) const = default;
    };

    std::variant<Root, Picker> value;

    static PaletteMode root() { return {}; }
    static PaletteMode picker(PickerKind kind, QStringList keys)
    {
        return {Picker{kind, std::move(keys)}};
    }
    /// Null for the commands.
    const Picker *asPicker() const { return std::get_if<Picker>(&value); }

    bool operator==(const PaletteMode &) const = default;
};
