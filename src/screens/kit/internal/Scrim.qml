import QtQuick
import Velmora.Theme

/// Dims the window below a sheet. The overlay sets its opacity.
Rectangle {
    id: root

    color: Theme.scrim
    opacity: 0

    Behavior on opacity {
        NumberAnimation {
            duration: Motion.fadeDuration
        }
    }
}
