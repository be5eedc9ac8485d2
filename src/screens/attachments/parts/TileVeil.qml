import QtQuick
import Velmora.Kit

/// A dark veil with a spinner over the picture of a tile, whose upper corners are rounded.
Item {
    id: root

    required property real corner
    property bool spins: true

    Item {
        anchors.fill: parent
        clip: true

        Rectangle {
            width: parent.width
            height: parent.height + radius
            radius: root.corner
            color: Qt.rgba(0, 0, 0, 0.25)
        }
    }

    Spinner {
        anchors.centerIn: parent
        size: 16
        color: "white"
        running: root.visible && root.spins
    }
}
