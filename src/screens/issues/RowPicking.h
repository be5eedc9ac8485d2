#pragma once

#include "state/PickerKind.h"

#include <QtQml/qqmlregistration.h>

/// The kinds of pickers, for QML.
namespace RowPicking {
Q_NAMESPACE
QML_ELEMENT

enum class Kind {
    Status = int(PickerKind::Status),
    Priority = int(PickerKind::Priority),
    Assignee = int(PickerKind::Assignee),
    Labels = int(PickerKind::Labels)
};
Q_ENUM_NS(Kind)

} // namespace RowPicking
