import QtQuick
import Velmora.Issues
import Velmora.Theme

// The style of all cards of a board, in the colours of the theme.
CardStyle {
    id: root

    ink: Theme.text1
    faint: Theme.neutral
    quiet: Theme.text2
    done: Theme.done
    outline: Theme.chipOutline
    late: Theme.redText
    lateOutline: Qt.rgba(Theme.red.r, Theme.red.g, Theme.red.b, 0.4)
    cellFill: Theme.buttonHoverFill
    cellPressed: Theme.ink(0.12)
    fill: Theme.card
    restEdge: Theme.ink(0.07)
    focusEdge: Theme.accentAt(0.4)
    strongEdge: Theme.accentAt(0.8)
    cellEdge: Theme.ink(0.1)
    liftDuration: Motion.cardDuration
}
