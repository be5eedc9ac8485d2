import QtQuick
import Velmora.Theme

/// Contains skeleton bars and makes them pulse together while they are visible. Without animation if reduced motion is
/// requested.
Item {
    id: root

    Accessible.role: Accessible.Indicator
    Accessible.name: "Chargement…"

    SequentialAnimation on opacity {
        running: root.visible && !Motion.reduced
        loops: Animation.Infinite

        NumberAnimation {
            from: 1
            to: Motion.skeletonLow
            duration: Motion.skeletonDuration
            easing.type: Easing.InOutQuad
        }

        NumberAnimation {
            from: Motion.skeletonLow
            to: 1
            duration: Motion.skeletonDuration
            easing.type: Easing.InOutQuad
        }
    }
}
