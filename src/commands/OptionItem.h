#pragma once

#include "commands/OptionAction.h"
#include "commands/OptionIcon.h"

/// One row of a picker.
struct OptionItem
{
    /// Stable and unique within the list.
    QString id;
    QString title;
    std::optional<QString> subtitle;
    OptionIcon icon;
    /// Shows a check mark.
    bool isSelected = false;
    /// The digit key that picks the row.
    std::optional<QString> shortcut;
    /// The list stays open when the row is picked.
    bool keepsOpen = false;
    OptionAction run;

    bool isPickedBy(int digit) const { return shortcut == QString::number(digit); }
    bool operator==(const OptionItem &) const = default;
};
