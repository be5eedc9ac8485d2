import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The loading indicator: eight blades that rotate step by step, only while they are visible.
Image {
    id: root

    property real size: 14
    property color color: Theme.text2
    property bool running: true

    width: size
    height: size
    sourceSize.width: Math.ceil(size)
    sourceSize.height: Math.ceil(size)
    source: IconAddresses.spinner(size, color)
    Accessible.role: Accessible.Animation
    Accessible.name: "Chargement…"

    Timer {
        running: root.running && root.visible && root.Window.visibility !== Window.Hidden
        interval: 100
        repeat: true
        onTriggered: root.rotation = (root.rotation + 45) % 360
    }
}
