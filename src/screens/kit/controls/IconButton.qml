import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A button that is one symbol. Plain: a square of 22 (or `side`) that fills under the pointer. Glass: a round
/// floating one. Prominent: round, in the accent. Its name is its hint too.
FocusableItem {
    id: control

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

    Behavior on scale {
        NumberAnimation {
            duration: Motion.pressDuration
        }
    }

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: control.symbol
            size: control.symbolSize
            weight: control.symbolWeight
            color: !control.enabled ? Theme.text4 : control.prominent ? Theme.textOnAccent
                 : control.plain && control.lit ? Theme.text1 : control.ink
        }
    }

    background: ButtonSurface {
        corner: control.corner
        floating: !control.plain
        prominent: control.prominent
        hovered: control.lit
        pressed: control.down
    }
}
