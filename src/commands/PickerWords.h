#pragma once

#include "commands/Command.h"

#include <QString>

/// What the action that opens the picker is called in the palette, with its ellipsis.
QString pickerActionTitle(PickerKind kind);
/// What the picker does, as its head says it: the same without the ellipsis.
QString pickerTitle(PickerKind kind);
/// What the search field of the picker says while it is empty.
QString pickerPlaceholder(PickerKind kind);
