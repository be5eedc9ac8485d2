import QtQuick
import Velmora.Kit
import Velmora.Theme

// The fill and the hint of the cell under the pointer.
Rectangle {
    id: root

    required property RowCell cell

    // Pressed: its hint would lie over the picker that it opened.
    property RowCell hushed: null

    onCellChanged: hushed = null

    visible: cell !== null
    x: cell ? cell.parent.x + cell.x : 0
    width: Metrics.smallButton
    height: Metrics.smallButton
    radius: Metrics.radiusSquare
    color: Theme.buttonHoverFill

    HintTip {
        shown: root.visible && root.cell !== root.hushed
        text: root.cell?.hint ?? ""
    }

    Connections {
        target: root.cell

        function onPressed() {
            root.hushed = root.cell;
        }
    }
}
