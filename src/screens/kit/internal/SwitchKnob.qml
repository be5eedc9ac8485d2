import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The knob of a switch, which slides to its other place.
Rectangle {
    id: knob

    width: 16
    height: 16
    radius: 8
    color: "#FFFFFF"

    Behavior on x {
        NumberAnimation {
            duration: Motion.cardDuration
            easing: Springs.even
        }
    }

    GlassFrame {
        anchors.fill: parent
        radius: knob.radius
        shadow: "knob"
    }
}
