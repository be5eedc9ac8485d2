import QtQuick
import Velmora.Theme
import Velmora.Kit

/// One segment of a `SegmentedPicker`.
RadioChoice {
    id: root

    property bool isSmall: false

    leftPadding: isSmall ? 9 : 12
    rightPadding: leftPadding
    corner: height / 2

    background: Rectangle {
        radius: height / 2
        color: root.on ? (Theme.dark ? "#24FFFFFF" : Theme.card)
             : root.down ? Theme.highlightFill : root.lit ? Theme.hoverFill : "transparent"

        GlassFrame {
            anchors.fill: parent
            visible: root.on
            dark: Theme.dark
            radius: parent.radius
            shadow: "segment"
            hairline: Theme.dark ? "transparent" : Theme.ink(0.08)
        }
    }

    contentItem: AppText {
        text: root.text
        role: root.isSmall ? TypeScale.Badge : TypeScale.Small
        weight: Font.Medium
        color: !root.enabled ? Theme.text4 : root.on ? Theme.text1 : Theme.text2
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
