import QtQuick
import Velmora.Theme

/// The caret of a text field, 1.5 wide, in the accent colour. It blinks at the rate of the desktop.
Rectangle {
    id: root

    required property bool shown

    implicitWidth: 1.5
    radius: 0.75
    color: Theme.accent
    visible: shown && blink.lit
    // Centred between two letters, and not above the following one.
    transform: Translate {
        x: -1
    }

    Timer {
        id: blink

        property bool lit: true

        running: root.shown && interval > 0
        interval: Application.styleHints.cursorFlashTime / 2
        repeat: true
        onTriggered: lit = !lit
        onRunningChanged: lit = true
    }
}
