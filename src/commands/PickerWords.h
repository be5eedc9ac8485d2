#pragma once

#include "commands/Command.h"

#include <QString>

/// The palette's title for the action that opens the picker, with an ellipsis.
QString pickerActionTitle(PickerKind kind);
/// The title of the picker itself: the same text without the ellipsis.
QString pickerTitle(PickerKind kind);
/// The placeholder of the picker's search field.
QString pickerPlaceholder(PickerKind kind);
