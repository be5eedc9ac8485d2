import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Theme

// What one row of a list at a time has under the pointer: the fill of its cell, and the hint. Itself of no size, so that
// it never stands between the pointer and the cell.
Item {
    id: root

    required property IssueRow row

    readonly property rowSpot spot: row?.hotSpot ?? RowFitting.noSpot()
    readonly property bool isOver: row !== null && row.isHovered && spot.width > 0
    // Pressed: the hint would lie over the picker that opened.
    property bool isHushed: false

    onSpotChanged: isHushed = false
    onRowChanged: isHushed = false
    parent: row
    visible: isOver
    z: -0.5

    Rectangle {
        x: root.spot.x
        y: root.row?.cellTop ?? 0
        width: root.spot.width
        height: Metrics.smallButton
        radius: Metrics.radiusSquare
        color: root.spot.isCell ? Theme.buttonHoverFill : "transparent"

        HintTip {
            shown: root.isOver && !root.isHushed
            text: root.spot.hint
        }
    }

    Connections {
        target: root.row

        function onPickRequested() {
            root.isHushed = true;
        }
    }
}
