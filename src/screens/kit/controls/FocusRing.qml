import QtQuick
import Velmora.Theme

/// The keyboard's focus round the parent's box: 2 wide, 2 away, of the same curvature. Set `shown` and the box's
/// `corner`.
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
