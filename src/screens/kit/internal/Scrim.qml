import QtQuick
import Velmora.Kit
import Velmora.Theme

/// Dims the window below a sheet. The overlay sets its opacity.
Rectangle {
    id: root

    color: Theme.scrim
    opacity: 0

    LayerShield {
        anchors.fill: parent
    }

    Behavior on opacity {
        NumberAnimation {
            duration: Motion.fadeDuration
        }
    }
}
