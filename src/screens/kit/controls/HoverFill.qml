import QtQuick
import Velmora.Theme

/// A fill that covers the parent. It appears at once and fades out.
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
