import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The sign of waiting: eight blades that turn a step at a time, only while they are seen.
Image {
    id: root

    property real size: 14
    property color color: Theme.text2
    property bool running: true

    width: size
    height: size
    sourceSize.width: Math.ceil(size)
    sourceSize.height: Math.ceil(size)
    source: Pictures.spinner(size, color)
    Accessible.role: Accessible.Animation
    Accessible.name: "Chargement…"

    Timer {
        running: root.running && root.visible && root.Window.visibility !== Window.Hidden
        interval: 100
        repeat: true
        onTriggered: root.rotation = (root.rotation + 45) % 360
    }
}
