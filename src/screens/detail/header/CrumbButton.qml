import QtQuick
import Velmora.Kit
import Velmora.Model
import Velmora.Theme

// A key in the breadcrumb, as a button, after the icon of its type if `hasType` is set.
FocusableItem {
    id: root

    property bool isCurrent: false
    property bool hasType: false
    property issueType type

    implicitHeight: Metrics.smallButton
    // The fill reaches beyond the text, which keeps its distance from the other parts.
    leftInset: -Metrics.gapTiny
    rightInset: -Metrics.gapTiny
    corner: Metrics.radiusSquare

    contentItem: Row {
        spacing: 5

        TypeIcon {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.hasType
            type: root.type
            Accessible.ignored: true
        }

        AppText {
            anchors.verticalCenter: parent.verticalCenter
            weight: root.isCurrent ? Font.Medium : Font.Normal
            tabular: true
            color: root.isCurrent || root.lit ? Theme.text1 : Theme.text2
            text: root.text
            Accessible.ignored: true
        }
    }

    background: HoverFill {
        radius: root.corner
        shown: root.lit
    }
}
