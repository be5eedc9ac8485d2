import QtQuick
import Velmora.Theme

/// Glass with round ends, for toolbar groups, chips and badges. Children are positioned with their anchors.
GlassPanel {
    id: root

    implicitHeight: Metrics.capsuleHeight
    radius: height / 2
    shadow: "capsule"
    color: Theme.glass
}
