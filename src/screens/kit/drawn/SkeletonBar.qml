import QtQuick
import Velmora.Theme

/// A bar that stands for text to come; put bars into a `SkeletonPulse`, which breathes as a whole.
Rectangle {
    id: root

    implicitHeight: 10
    radius: 3
    color: Theme.skeletonFill
    Accessible.ignored: true
}
