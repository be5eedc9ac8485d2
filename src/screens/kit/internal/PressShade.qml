import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The shade of hover and press over a small control: white or black over the accent, the primary colour elsewhere.
HoverFill {
    id: root

    required property bool accented
    required property bool hovered
    required property bool pressed

    shown: hovered
    fill: accented ? (pressed ? "#1F000000" : "#14FFFFFF") : Theme.ink(pressed ? 0.12 : 0.06)
}
