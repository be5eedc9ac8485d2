import QtQuick
import Velmora.Theme

/// A fill over the parent's box that is there at once and leaves softly.
Rectangle {
    id: hover

    required property bool shown
    property color fill: Theme.hoverFill

    anchors.fill: parent
    color: fill
    opacity: shown ? 1 : 0
    visible: opacity > 0

    Behavior on opacity {
        enabled: !hover.shown

        NumberAnimation {
            duration: Motion.fadeDuration
        }
    }
}
