import QtQuick
import Velmora.Theme

/// Holds skeleton bars and breathes as a whole while it is seen; still with reduced motion.
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
