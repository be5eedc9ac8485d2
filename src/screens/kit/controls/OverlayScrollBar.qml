import QtQuick
import QtQuick.Templates as T
import Velmora.Theme

/// A scroll bar above the content: visible while scrolling or under the pointer, wider under the pointer, and hidden
/// shortly afterwards. `Scrolling` places it; it can also be attached with `ScrollBar.vertical: OverlayScrollBar {}`
/// (import QtQuick.Templates or Controls for the attached property). Screen readers are told the position in percent.
T.ScrollBar {
    id: root

    property int thickness: Metrics.scrollThumbWidth
    /// The content is moving.
    property bool scrolls: false
    readonly property bool wanted: size < 1 && (active || hovered || pressed || scrolls || flashing.running)
    // The names under which screen readers look for the value and its range.
    readonly property real value: size < 1 ? 100 * Math.max(0, Math.min(1, position / (1 - size))) : 0
    readonly property real minimumValue: 0
    readonly property real maximumValue: 100

    /// The pointer has dragged the bar to a position.
    signal dragged(share: real)

    /// Shows the bar for a moment.
    function flash() {
        asked.restart();
    }

    onPositionChanged: if (pressed) dragged(position)

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

    // The request may come while `wanted` is being evaluated.
    Timer {
        id: asked
        interval: 0
        onTriggered: flashing.restart()
    }

    Timer {
        id: flashing
        interval: 100
    }
}
