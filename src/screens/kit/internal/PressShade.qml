import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The fill for hover and press above a small control: white or black above the accent, otherwise the primary colour.
HoverFill {
    id: root

    required property bool accented
    required property bool hovered
    required property bool pressed

    shown: hovered
    fill: accented ? (pressed ? "#1F000000" : "#14FFFFFF") : Theme.ink(pressed ? 0.12 : 0.06)
}
