import QtQuick
import Velmora.Kit
import Velmora.Theme

// The button that begins the editing. It is drawn while `isSeen`, under the pointer and with the keyboard focus, and is
// there for screen readers at any time. It covers what is below it.
FocusableItem {
    id: root

    required property bool isSeen

    readonly property real strength: isSeen || lit || ringed ? 1 : 0

    implicitHeight: Metrics.filterChipHeight
    leftPadding: Metrics.gap
    rightPadding: Metrics.gap
    corner: height / 2
    text: "Modifier"
    accessibleName: "Modifier la description"

    contentItem: Row {
        spacing: Metrics.gapSmall
        opacity: root.strength

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: "pencil"
            size: 11.5
            color: root.lit ? Theme.text1 : Theme.text2
        }

        AppText {
            anchors.verticalCenter: parent.verticalCenter
            role: TypeScale.Small
            weight: Font.Medium
            color: root.lit ? Theme.text1 : Theme.text2
            text: root.text
            Accessible.ignored: true
        }
    }

    background: Rectangle {
        radius: root.corner
        color: Theme.elevated
        border.width: 1
        border.color: Theme.hairline
        opacity: root.strength

        HoverFill {
            radius: root.corner
            shown: root.lit
            fill: Theme.ink(root.down ? 0.12 : 0.08)
        }
    }
}
