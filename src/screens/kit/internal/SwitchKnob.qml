import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The knob of a switch, which slides to its new position.
Rectangle {
    id: root

    width: 16
    height: 16
    radius: 8
    color: "#FFFFFF"

    GlassFrame {
        anchors.fill: parent
        radius: root.radius
        shadow: "knob"
    }

    Behavior on x {
        NumberAnimation {
            duration: Motion.cardDuration
            easing: Springs.even
        }
    }
}
