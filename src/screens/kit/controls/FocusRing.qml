import QtQuick
import Velmora.Theme

/// The focus ring around the parent: 2 wide, at a distance of 2, with matching curvature. Set `shown` and the `corner`
/// radius of the parent.
Rectangle {
    id: root

    required property bool shown
    required property real corner

    anchors.fill: parent
    anchors.margins: -4
    z: 1
    visible: shown
    radius: corner + 4
    color: "transparent"
    border.width: 2
    border.color: Theme.focusRing
}
