#pragma once

#include <QSet>
#include <QString>

#include <optional>

/// The user's selection, which all layouts share. Issues are identified by their keys.
struct Selection
{
    /// The issue with the keyboard's focus.
    std::optional<QString> focusedKey;
    /// The multi-selection.
    QSet<QString> checked;
    /// The issue open in the side inspector.
    std::optional<QString> inspectorKey;

    bool operator==(const Selection &) const = default;
};
