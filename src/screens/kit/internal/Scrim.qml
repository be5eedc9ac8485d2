import QtQuick
import Velmora.Theme

/// What dims the window under a sheet; its opacity is written by the overlay.
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
