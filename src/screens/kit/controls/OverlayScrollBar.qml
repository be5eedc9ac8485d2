import QtQuick
import QtQuick.Templates as T
import Velmora.Theme

/// A scroll bar over the content: there while scrolling or under the pointer, wider under it, gone soon after. Attach
/// it with `ScrollBar.vertical: OverlayScrollBar {}` (import QtQuick.Templates or Controls for the attached property).
T.ScrollBar {
    id: bar

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
            width: bar.vertical ? (bar.hovered || bar.pressed ? 9 : bar.thickness) : parent.width
            height: bar.vertical ? parent.height : (bar.hovered || bar.pressed ? 9 : bar.thickness)
            radius: Math.min(width, height) / 2
            color: Theme.scrollThumb
        }

        states: State {
            when: bar.wanted

            PropertyChanges {
                bar.contentItem.opacity: 1
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
