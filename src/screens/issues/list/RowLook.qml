import QtQuick
import Velmora.Issues
import Velmora.Theme

// The style of all rows of a list, in the colours of the theme.
RowStyle {
    id: root

    ink: Theme.text1
    faint: Theme.neutral
    quiet: Theme.text2
    parentInk: Theme.text3
    hoverFill: Theme.hoverFill
    openFill: Theme.openFill
    checkedFill: Theme.checkedFill
    focusBar: Theme.accent
    done: Theme.done
    outline: Theme.chipOutline
    late: Theme.redText
    lateOutline: Qt.rgba(Theme.red.r, Theme.red.g, Theme.red.b, 0.4)
    cellFill: Theme.buttonHoverFill
    cellPressed: Theme.ink(0.12)
}
