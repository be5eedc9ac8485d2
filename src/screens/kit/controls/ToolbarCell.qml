import QtQuick
import Velmora.Kit
import Velmora.Theme

/// One command inside a toolbar capsule, 34 × 28. `on` fills it (a chosen layout, an open popover), `active` colours
/// its symbol (a filter that filters).
FocusableItem {
    id: control

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
            name: control.symbol
            size: control.symbolSize
            color: !control.enabled ? Theme.text4 : control.active ? Theme.accent : control.ink
        }
    }

    background: Rectangle {
        radius: control.corner
        color: control.on ? Theme.highlightFill : "transparent"

        HoverFill {
            radius: control.corner
            shown: control.lit
            fill: Theme.ink(control.down ? 0.09 : 0.05)
        }
    }
}
