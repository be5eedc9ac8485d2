import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The background of a button: nothing, glass, or the accent (red for a destructive action), with the fills for hover
/// and press above it. A flat grey while the button is disabled.
Rectangle {
    id: root

    required property real corner
    property bool floating: false
    property bool prominent: false
    property bool destructive: false
    readonly property bool shaped: floating || prominent
    readonly property color strong: destructive ? Theme.redFill : Theme.accentFill
    property bool hovered: false
    property bool pressed: false

    radius: corner
    color: !shaped ? "transparent" : !enabled ? Theme.ink(0.07) : prominent ? strong : Theme.glass

    GlassFrame {
        anchors.fill: parent
        visible: root.shaped && root.enabled
        dark: Theme.dark
        accent: root.destructive ? Theme.redFill : Theme.accent
        radius: root.corner
        shadow: root.prominent ? "prominent" : "capsule"
        hairline: root.prominent ? "transparent" : Theme.hairline
        edgeLight: root.prominent ? "#47FFFFFF" : Theme.edgeLight
    }

    HoverFill {
        radius: root.corner
        shown: root.hovered
        fill: root.prominent ? (root.pressed ? "#1F000000" : "#14FFFFFF")
            : root.pressed ? Theme.ink(0.12) : Theme.ink(root.floating ? 0.05 : 0.08)
    }
}
