import QtQuick
import Velmora.Theme

// Indicates that a drop would move the dragged issues to this column.
Rectangle {
    id: root

    required property bool isTargeted

    opacity: isTargeted ? 1 : 0
    visible: opacity > 0
    color: Theme.accentAt(0.1)
    border.width: 1.5
    border.pixelAligned: false
    border.color: Theme.accentAt(0.5)

    Behavior on opacity {
        NumberAnimation {
            duration: Motion.scrollDuration
            easing: Springs.even
        }
    }
}
