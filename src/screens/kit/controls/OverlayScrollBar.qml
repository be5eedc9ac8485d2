import QtQuick
import QtQuick.Templates as T
import Velmora.Theme

/// A scroll bar above the content: visible while scrolling or under the pointer, wider under the pointer, and hidden
/// shortly afterwards. Attach it with `ScrollBar.vertical: OverlayScrollBar {}` (import QtQuick.Templates or Controls
/// for the attached property).
T.ScrollBar {
    id: root

    property int thickness: Metrics.scrollThumbWidth
    readonly property bool wanted: size < 1 && (active || hovered || pressed)

    implicitWidth: vertical ? 15 : 40
    implicitHeight: vertical ? 40 : 15
    padding: 3
    minimumSize: 28 / Math.max(28, vertical ? availableHeight : availableWidth)
    visible: policy !== T.ScrollBar.AlwaysOff
    Accessible.role: Accessible.ScrollBar
    Accessible.name: vertical ? "Défilement vertical" : "Défilement horizontal"

    contentItem: Item {
        opacity: 0

        Rectangle {
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            width: root.vertical ? (root.hovered || root.pressed ? 9 : root.thickness) : parent.width
            height: root.vertical ? parent.height : (root.hovered || root.pressed ? 9 : root.thickness)
            radius: Math.min(width, height) / 2
            color: Theme.scrollThumb
        }

        states: State {
            when: root.wanted

            PropertyChanges {
                root.contentItem.opacity: 1
            }
        }

        transitions: Transition {
            to: ""

            SequentialAnimation {
                PauseAnimation {
                    duration: Motion.scrollBarLinger
                }

                NumberAnimation {
                    property: "opacity"
                    duration: Motion.scrollBarFade
                }
            }
        }
    }
}
