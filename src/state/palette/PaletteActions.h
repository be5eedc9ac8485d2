#pragma once

#include "commands/IssueCreation.h"
#include "commands/OptionItem.h"
#include "model/Enums.h"

/// What the actions of the palette depend on.
struct PaletteActionInputs
{
    /// The keys of the issues that an action applies to.
    QStringList targets;
    LayoutMode layout = LayoutMode::List;
    bool showCompleted = true;
    AppearanceMode appearance = AppearanceMode::System;
    IssueCreation creation = IssueCreation::Offered;

    bool operator==(const PaletteActionInputs &) const = default;
};

/// The actions in their order: those that need an issue only with a target, those that need a single one only with
/// exactly one.
QList<OptionItem> paletteActions(const PaletteActionInputs &inputs);
