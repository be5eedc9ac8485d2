pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// One issue of the list. The base class draws its icons. Parts that few rows have are created on demand.
RowLine {
    id: root

    required property bool isFocused
    required property bool isChecked
    required property bool isOpen
    required property string updatedText
    required property string accessibleName
    required property issueListBadge badge
    // At least one issue is checked, so every check box is shown.
    required property bool isSelecting
    // The list has the keyboard focus, so screen readers announce the focused row.
    property bool hasKeyboard: false
    // The menu of the row is open. The row then looks as if it were under the pointer, which is above the menu.
    property bool hasMenu: false
    readonly property real cellTop: Math.ceil(height / 2) - Metrics.rowPicker / 2
    // The check box can be clicked before it is visible. Its mark exists only while it is visible or fades out.
    readonly property bool isCheckShown: isChecked || isSelecting || isHovered || hasMenu
    property bool isCheckDrawn: false

    isDraggable: true
    onIsCheckShownChanged: if (isCheckShown) isCheckDrawn = true

    Accessible.role: Accessible.ListItem
    Accessible.name: root.accessibleName
    Accessible.focusable: true
    Accessible.focused: root.isFocused && root.visible && root.hasKeyboard
    Accessible.selectable: true
    Accessible.selected: root.isChecked
    Accessible.onPressAction: root.clicked(Qt.point(0, 0), 0)

    Rectangle {
        z: -1
        y: Metrics.rowFillInset
        width: root.width
        height: root.height - 2 * Metrics.rowFillInset
        radius: Metrics.radiusRow
        color: root.isChecked ? Theme.checkedFill
            : root.isOpen ? Theme.openFill
            : root.isFocused || root.isHovered || root.hasMenu ? Theme.hoverFill : "transparent"
    }

    Rectangle {
        visible: root.isFocused
        z: -1
        y: Metrics.focusBarInset
        width: Metrics.focusBarWidth
        height: root.height - 2 * Metrics.focusBarInset
        radius: width / 2
        color: Theme.accent
    }

    When {
        shown: root.isCheckDrawn

        RowCheckMark {
            x: root.plan.check
            y: root.cellTop + (Metrics.rowPicker - height) / 2
            checked: root.isChecked
            hovered: root.hotSpot.isCheck
            pressed: hovered && root.isSpotPressed
            isShown: root.isCheckShown
            onGone: root.isCheckDrawn = false
        }
    }

    When {
        shown: AssistiveReader.isPresent

        RowCells {
            row: root
            cellTop: root.cellTop
            isChecked: root.isChecked
        }
    }

    RowText {
        visible: x >= 0
        x: root.plan.key
        anchors.verticalCenter: parent.verticalCenter
        width: root.style.keyWidth
        font: root.style.figuresFont
        leading: root.style.smallLeading
        color: root.style.quiet
        text: root.issue.key
    }

    RowSummary {
        x: root.plan.summary
        width: root.plan.summaryWidth
        anchors.verticalCenter: parent.verticalCenter
        font: root.style.titleFont
        leading: root.style.titleLeading
        color: root.style.ink
        summary: root.issue.summary
        parentSummary: root.issue.parentSummary
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

    // "à l'instant" is wider than the column and also uses part of the gap before it.
    RowText {
        visible: root.plan.updated >= 0 && !root.badge.isShown
        x: root.plan.updated + root.plan.updatedWidth - width
        anchors.verticalCenter: parent.verticalCenter
        font: root.style.figuresFont
        leading: root.style.smallLeading
        color: root.style.quiet
        text: root.updatedText
    }
}
