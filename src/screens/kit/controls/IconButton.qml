import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A button that consists of one symbol. Plain: a square of 22 (or `side`) that is filled under the pointer. Glass: a
/// round floating button. Prominent: round, in the accent colour. Its name is also its hint.
FocusableItem {
    id: root

    enum Look { Plain, Glass, Prominent }

    required property string name
    required property string symbol
    property int look: IconButton.Plain
    property real side: look === IconButton.Plain ? Metrics.smallButton : Metrics.capsuleHeight
    property real symbolSize: look === IconButton.Plain ? 11 : 12.5
    property string symbolWeight: look === IconButton.Prominent ? "semibold" : "regular"
    property color ink: look === IconButton.Plain ? Theme.text2 : Theme.text1
    readonly property bool plain: look === IconButton.Plain
    readonly property bool prominent: look === IconButton.Prominent

    implicitWidth: side
    implicitHeight: side
    corner: plain ? Metrics.radiusSquare : side / 2
    accessibleName: name
    hint: name
    scale: down && !plain ? Motion.pressScale : 1

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            size: root.symbolSize
            weight: root.symbolWeight
            color: !root.enabled ? Theme.text4 : root.prominent ? Theme.textOnAccent
                 : root.plain && root.lit ? Theme.text1 : root.ink
        }
    }

    background: ButtonSurface {
        corner: root.corner
        floating: !root.plain
        prominent: root.prominent
        hovered: root.lit
        pressed: root.down
    }

    Behavior on scale {
        NumberAnimation {
            duration: Motion.pressDuration
        }
    }
}
