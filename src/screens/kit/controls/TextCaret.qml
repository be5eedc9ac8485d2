import QtQuick
import Velmora.Theme

/// The caret of a text field, 1.5 wide in the accent, blinking at the desktop's pace.
Rectangle {
    id: root

    required property bool shown

    implicitWidth: 1.5
    radius: 0.75
    color: Theme.accent
    visible: shown && blink.lit
    // Between the letters, and not on the one that follows.
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
