import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A switch, 34 × 20, on in the accent. `name` is what it switches.
FocusableItem {
    id: control

    required property string name

    implicitWidth: 34
    implicitHeight: 20
    checkable: true
    corner: height / 2
    accessibleName: name
    opacity: enabled ? 1 : 0.45

    background: Rectangle {
        radius: control.corner
        color: control.checked ? Theme.accent : Theme.ink(0.16)

        PressShade {
            radius: control.corner
            accented: control.checked
            hovered: control.lit
            pressed: control.down
        }
    }

    contentItem: Item {
        SwitchKnob {
            x: control.checked ? 16 : 2
            y: 2
        }
    }
}
