import QtQuick
import Velmora.Theme

// The background of a field on glass: a subtle fill and, with the focus, an inner line and a glow.
Rectangle {
    id: root

    required property bool focused

    radius: Metrics.radiusBubble
    color: Theme.ink(0.06)

    Rectangle {
        anchors.fill: parent
        anchors.margins: -3
        visible: root.focused
        radius: root.radius + 3
        color: "transparent"
        border.width: 3
        border.color: Theme.accentAt(0.22)
    }

    Rectangle {
        anchors.fill: parent
        visible: root.focused
        radius: root.radius
        color: "transparent"
        border.width: 1
        border.color: Theme.accentAt(0.7)
    }
}
