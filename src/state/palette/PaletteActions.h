#pragma once

#include "commands/OptionItem.h"
#include "model/Enums.h"

/// Everything that the actions of the palette depend on.
struct PaletteActionInputs
{
    /// The keys of the issues that an action applies to.
    QStringList targets;
    LayoutMode layout = LayoutMode::List;
    bool showCompleted = true;
    AppearanceMode appearance = AppearanceMode::System;

    bool operator==(const PaletteActionInputs &) const = default;
};

/// The actions in their order. Actions on issues are included only if there is a target; actions on a single issue only
/// if there is exactly one.
QList<OptionItem> paletteActions(const PaletteActionInputs &inputs);
