import QtQuick
import Velmora.Theme

/// The fade at an edge of a scrolling view: a gradient of the colour behind the content, drawn above it. It appears as
/// content gets hidden beyond the edge.
Rectangle {
    id: root

    required property color ground
    /// The height of the content that is hidden beyond the edge.
    required property real hidden
    property bool isAtTop: false

    height: Metrics.scrollFade
    visible: hidden > 0
    opacity: Math.min(1, hidden / Metrics.scrollFade)

    gradient: Gradient {
        GradientStop {
            position: root.isAtTop ? 1 : 0
            color: Qt.alpha(root.ground, 0)
        }

        GradientStop {
            position: root.isAtTop ? 0 : 1
            color: root.ground
        }
    }
}
