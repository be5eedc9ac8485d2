import QtQuick
import Velmora.Theme

/// A fill over the parent's box that is there at once and leaves softly.
Rectangle {
    id: root

    required property bool shown
    property color fill: Theme.hoverFill

    anchors.fill: parent
    color: fill
    opacity: 0
    visible: opacity > 0

    states: State {
        name: "shown"
        when: root.shown

        PropertyChanges {
            root.opacity: 1
        }
    }

    transitions: Transition {
        from: "shown"

        NumberAnimation {
            property: "opacity"
            duration: Motion.fadeDuration
        }
    }
}
