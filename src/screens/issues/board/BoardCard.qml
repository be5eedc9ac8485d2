pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.State

// One issue of the board.
CardBody {
    id: root

    required property string accessibleName
    // The board has the keyboard focus, so screen readers announce the focused card.
    property bool hasKeyboard: false

    isDraggable: true
    Accessible.role: Accessible.ListItem
    Accessible.name: root.accessibleName
    Accessible.focusable: true
    Accessible.focused: root.isFocused && root.visible && root.hasKeyboard
    Accessible.selectable: true
    Accessible.selected: root.isChecked
    Accessible.onPressAction: root.clicked(Qt.point(0, 0), 0)

    RowCell {
        x: root.assigneeCell.x
        y: root.assigneeCell.y
        kind: Commands.PickerKind.Assignee
        spoken: "Assigné : " + (root.issue.hasAssignee ? root.issue.assigneeOrEmpty.name : "personne")
        onPressed: root.pickRequested(kind, root.assigneeCell)
    }

    RowCell {
        x: root.priorityCell.x
        y: root.priorityCell.y
        height: root.priorityCell.height
        kind: Commands.PickerKind.Priority
        spoken: "Priorité : " + IconAddresses.priorityName(root.issue.priorityLevel)
        onPressed: root.pickRequested(kind, root.priorityCell)
    }
}
