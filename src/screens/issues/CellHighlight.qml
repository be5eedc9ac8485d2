import QtQuick
import Velmora.Kit
import Velmora.Theme

// The fill and the hint of the cell under the pointer.
Rectangle {
    id: root

    required property RowCell cell

    visible: cell !== null
    x: cell ? cell.parent.x + cell.x : 0
    width: Metrics.smallButton
    height: Metrics.smallButton
    radius: Metrics.radiusSquare
    color: Theme.buttonHoverFill

    HintTip {
        shown: root.visible
        text: root.cell?.hint ?? ""
    }
}
