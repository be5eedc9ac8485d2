#pragma once

/// What a picker picks.
enum class PickerKind { Status, Priority, Assignee, Labels };
