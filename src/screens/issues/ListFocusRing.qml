import QtQuick
import Velmora.Kit
import Velmora.Theme

// Shows that the list or the board has the keyboard focus while none of its issues has it. It lies inside the edges,
// because the pane clips what is outside.
Rectangle {
    id: root

    required property Item list
    required property string focusedKey

    anchors.fill: list
    anchors.margins: Metrics.gapTiny
    z: 2
    visible: arrival.isShown && focusedKey === ""
    radius: Metrics.radiusPane - Metrics.gapTiny
    color: "transparent"
    border.width: 2
    border.color: Theme.focusRing

    TabArrival {
        id: arrival
        item: root.list
    }
}
