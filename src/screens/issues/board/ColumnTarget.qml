import QtQuick
import Velmora.Theme

// Indicates that a drop would move the dragged issues to this column.
Rectangle {
    id: root

    required property bool isTargeted

    readonly property real outline: 1.5

    opacity: isTargeted ? 1 : 0
    visible: opacity > 0
    color: Theme.accentAt(0.1)
    border.width: root.outline
    border.pixelAligned: false
    border.color: Theme.accentAt(0.5)

    Behavior on opacity {
        NumberAnimation {
            duration: Motion.scrollDuration
            easing: Springs.even
        }
    }
}
