import QtQuick
import Velmora.Theme
import Velmora.Kit

/// What lies under a text field: a quiet fill with a hairline, or floating glass; in focus an inner line and a glow.
Rectangle {
    id: surface

    required property real corner
    property bool glass: false
    property bool focused: false

    radius: corner
    color: glass ? Theme.glass : Theme.field

    GlassFrame {
        anchors.fill: parent
        dark: Theme.dark
        hairline: Theme.hairline
        radius: surface.corner
        shadow: surface.glass ? "capsule" : "none"
        edgeLight: surface.glass ? Theme.edgeLight : "transparent"
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: -3
        visible: surface.focused
        radius: surface.corner + 3
        color: "transparent"
        border.width: 3
        border.color: Theme.accentAt(0.22)
    }

    Rectangle {
        anchors.fill: parent
        visible: surface.focused
        radius: surface.corner
        color: "transparent"
        border.width: 1
        border.color: Theme.accentAt(0.7)
    }
}
