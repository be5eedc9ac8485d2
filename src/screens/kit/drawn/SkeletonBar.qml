import QtQuick
import Velmora.Theme

/// A placeholder bar for text that is still loading. Put bars into a `SkeletonPulse`, which animates them together.
Rectangle {
    id: root

    implicitHeight: 10
    radius: 3
    color: Theme.skeletonFill
    Accessible.ignored: true
}
