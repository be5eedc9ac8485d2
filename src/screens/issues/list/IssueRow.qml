pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// One issue of the list. The base class draws it. Parts that few rows have are created on demand.
RowLine {
    id: root

    required property string accessibleName
    required property issueListBadge badge
    // At least one issue is checked, so every check box is shown.
    required property bool isSelecting
    // The list has the keyboard focus, so screen readers announce the focused row.
    property bool hasKeyboard: false
    readonly property real cellTop: Math.ceil(height / 2) - Metrics.rowPicker / 2
    // The check box can be clicked before it is visible. Its mark exists once it was visible.
    readonly property bool isCheckShown: isChecked || isSelecting || isHovered || hasMenu
    property bool wasCheckShown: false

    showsEvent: badge.isShown
    isDraggable: true
    onIsCheckShownChanged: if (isCheckShown) wasCheckShown = true

    Accessible.role: Accessible.ListItem
    Accessible.name: root.accessibleName
    Accessible.focusable: true
    Accessible.focused: root.isFocused && root.visible && root.hasKeyboard
    Accessible.selectable: true
    Accessible.selected: root.isChecked
    Accessible.onPressAction: root.clicked(Qt.point(0, 0), 0)

    When {
        shown: root.wasCheckShown

        RowCheckMark {
            x: root.plan.check
            y: root.cellTop + (Metrics.rowPicker - height) / 2
            checked: root.isChecked
            hovered: root.hotSpot.isCheck
            pressed: hovered && root.isSpotPressed
            isShown: root.isCheckShown
        }
    }

    When {
        shown: AssistiveReader.isPresent

        RowCells {
            row: root
            cellTop: root.cellTop
        }
    }

    When {
        shown: root.badge.isShown && root.plan.updated >= 0

        RowActivity {
            x: root.plan.updated
            y: root.cellTop
            width: root.plan.updatedWidth
            badge: root.badge
        }
    }
}
