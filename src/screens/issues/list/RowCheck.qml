pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit

// The check box of a row, with a click area of 22. It can be clicked before it is visible. Its mark exists only while
// it is visible.
RowCell {
    id: root

    required property RowLine row
    required property bool isChecked
    required property bool isShown

    property bool isDrawn: false

    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: root.isChecked
    Accessible.onToggleAction: root.pressed()

    onIsShownChanged: if (isShown) isDrawn = true

    When {
        shown: root.isDrawn

        RowCheckMark {
            x: (root.width - width) / 2
            y: (root.height - height) / 2
            checked: root.isChecked
            hovered: root.row.hotSpot.isCheck
            pressed: hovered && root.row.isSpotPressed
            isShown: root.isShown
            onGone: root.isDrawn = false
        }
    }
}
