import QtQuick
import Velmora.Kit
import Velmora.Theme

/// One command inside a toolbar capsule, 34 × 28. `on` fills it (a chosen layout, an open popover), `active` colours
/// its symbol (a filter that filters).
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
