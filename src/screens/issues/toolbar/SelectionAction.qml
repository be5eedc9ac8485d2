import QtQuick
import Velmora.Kit
import Velmora.Theme

// A command of the selection bar: a symbol above a label.
FocusableItem {
    id: root

    required property string symbol

    readonly property int cellWidth: 64
    // Between the symbol and the label.
    readonly property int lineGap: 3

    implicitWidth: root.cellWidth
    implicitHeight: Metrics.selectionBarHeight - 2 * Metrics.gapTiny
    corner: height / 2

    contentItem: Item {
        Column {
            anchors.centerIn: parent
            spacing: root.lineGap

            Symbol {
                anchors.horizontalCenter: parent.horizontalCenter
                name: root.symbol
                size: 13
            }

            AppText {
                anchors.horizontalCenter: parent.horizontalCenter
                role: TypeScale.Micro
                text: root.text
                Accessible.ignored: true
            }
        }
    }

    background: HoverFill {
        radius: root.corner
        shown: root.lit
        fill: Theme.ink(root.down ? 0.12 : 0.07)
    }
}
