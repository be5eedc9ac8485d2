import QtQuick
import Velmora.Theme
import Velmora.Kit

/// One colour of a `SwatchPicker`: a circle with a soft gradient, and a check mark on the chosen one.
RadioChoice {
    id: root

    required property color fill

    implicitWidth: 24
    implicitHeight: 24
    corner: 12
    hint: text
    opacity: enabled ? 1 : 0.45

    background: Rectangle {
        radius: root.corner
        color: root.fill

        // Inset, because the software renderer draws the edge of a gradient without antialiasing.
        Rectangle {
            anchors.fill: parent
            anchors.margins: 1
            radius: height / 2

            gradient: Gradient {
                GradientStop {
                    position: 0
                    color: Qt.tint(root.fill, "#29FFFFFF")
                }

                GradientStop {
                    position: 1
                    color: root.fill
                }
            }
        }

        GlassFrame {
            anchors.fill: parent
            dark: Theme.dark
            radius: root.corner
            shadow: "none"
            hairline: Theme.ink(0.18)
        }

        PressShade {
            radius: root.corner
            accented: true
            hovered: root.lit
            pressed: root.down
        }
    }

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            visible: root.on
            name: "checkmark"
            size: 10
            weight: "bold"
            color: Theme.textOnAccent
        }
    }
}
