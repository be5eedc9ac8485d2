import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The background of a text field: a subtle fill with a hairline, or floating glass. With the focus it has an inner
/// line and a glow. If the entered text is `invalid`, the line is red and is shown without the focus too.
Rectangle {
    id: root

    required property real corner
    property bool glass: false
    property bool hovered: false
    property bool focused: false
    property bool invalid: false
    readonly property color mark: invalid ? Theme.red : Theme.accent

    radius: corner
    color: glass ? Theme.glass : Theme.field

    GlassFrame {
        anchors.fill: parent
        dark: Theme.dark
        hairline: Theme.hairline
        radius: root.corner
        shadow: root.glass ? "capsule" : "none"
        edgeLight: root.glass ? Theme.edgeLight : "transparent"
    }

    HoverFill {
        radius: root.corner
        shown: root.hovered && !root.focused
        fill: Theme.hoverFill
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: -3
        visible: root.focused
        radius: root.corner + 3
        color: "transparent"
        border.width: 3
        border.color: Qt.rgba(root.mark.r, root.mark.g, root.mark.b, 0.22)
    }

    Rectangle {
        anchors.fill: parent
        visible: root.focused || root.invalid
        radius: root.corner
        color: "transparent"
        border.width: 1
        border.color: Qt.rgba(root.mark.r, root.mark.g, root.mark.b, 0.7)
    }
}
