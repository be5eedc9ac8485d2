import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A switch, 34 × 20, in the accent colour while it is on. `name` describes what it switches.
CheckableItem {
    id: root

    required property string name

    implicitWidth: 34
    implicitHeight: 20
    corner: height / 2
    accessibleName: name
    opacity: enabled ? 1 : 0.45

    background: Rectangle {
        radius: root.corner
        color: root.checked ? Theme.accent : Theme.ink(0.16)

        PressShade {
            radius: root.corner
            accented: root.checked
            hovered: root.lit
            pressed: root.down
        }
    }

    contentItem: Item {
        SwitchKnob {
            x: root.checked ? 16 : 2
            y: 2
        }
    }
}
