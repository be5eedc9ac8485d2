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

    signal clicked(modifiers: int)
    signal menuRequested(x: real, y: real)
    signal dragBegun(handler: DragHandler)

    function press(x: real, y: real, modifiers: int) {
        const spot = spotAt(x, y);
        if (spot.isCell)
            pickRequested(spot.kind, spot.box);
        else
            clicked(modifiers);
    }

    Accessible.role: Accessible.ListItem
    Accessible.name: root.accessibleName
    Accessible.focusable: true
    Accessible.focused: root.isFocused && root.visible && root.hasKeyboard
    Accessible.selectable: true
    Accessible.selected: root.isChecked
    Accessible.onPressAction: root.clicked(0)

    TapHandler {
        id: tap
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: (point, button) => button === Qt.RightButton
            ? root.menuRequested(point.position.x, point.position.y)
            : root.press(point.position.x, point.position.y, tap.point.modifiers)
    }

    DragHandler {
        id: drag
        target: null
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        onActiveChanged: if (active) root.dragBegun(drag)
    }

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
