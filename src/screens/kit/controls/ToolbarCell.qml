import QtQuick
import Velmora.Kit
import Velmora.Theme

/// One command in a toolbar capsule, 34 × 28. `on` fills it (for a chosen layout or an open popover), and `active`
/// colours its symbol (for an active filter).
FocusableItem {
    id: root

    required property string name
    required property string symbol
    property real symbolSize: 13
    property bool on: false
    property bool active: false
    property color ink: Theme.text1

    implicitWidth: Metrics.capsuleCellWidth
    implicitHeight: 28
    corner: 14
    accessibleName: name
    hint: name

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            size: root.symbolSize
            color: !root.enabled ? Theme.text4 : root.active ? Theme.accent : root.ink
        }
    }

    background: Rectangle {
        radius: root.corner
        color: root.on ? Theme.highlightFill : "transparent"

        HoverFill {
            radius: root.corner
            shown: root.lit
            fill: Theme.ink(root.down ? 0.09 : 0.05)
        }
    }
}
