import QtQuick
import Velmora.Kit
import Velmora.Theme

// One of the kinds of readers, as a radio button. `tint` fills the chosen one, `ink` is its text.
RadioChoice {
    id: root

    required property string symbol
    required property color tint
    required property color ink

    implicitHeight: 26
    leftPadding: Metrics.gapMedium
    rightPadding: Metrics.gapMedium
    isTabStop: true
    corner: height / 2

    contentItem: Row {
        spacing: Metrics.gapSmall

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: root.symbol
            size: 11
            color: root.on ? root.tint : Theme.text2
        }

        AppText {
            anchors.verticalCenter: parent.verticalCenter
            role: TypeScale.Small
            weight: Font.Medium
            text: root.text
            color: root.on ? root.ink : Theme.text2
            Accessible.ignored: true
        }
    }

    background: Rectangle {
        radius: root.corner
        color: root.on ? Qt.rgba(root.tint.r, root.tint.g, root.tint.b, 0.14) : "transparent"

        HoverFill {
            radius: root.corner
            shown: root.lit && !root.on
            fill: Theme.ink(0.06)
        }
    }
}
