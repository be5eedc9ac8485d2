import QtQuick
import Velmora.Kit
import Velmora.Theme

// An active filter, and the button that removes it.
GlassCapsule {
    id: root

    required property string field
    required property string value
    required property real maximumWidth

    // The space before the name of the filter, and the side of the button.
    readonly property int padding: 11
    readonly property int crossSide: 20

    signal removed()

    width: Math.min(implicitWidth, maximumWidth)
    implicitWidth: Math.ceil(words.x + words.implicitWidth + Metrics.gapSmall + cross.width + Metrics.gapTiny)
    implicitHeight: Metrics.filterChipHeight
    Accessible.role: Accessible.Grouping
    Accessible.name: root.field + " : " + root.value

    AppText {
        id: label
        x: root.padding
        anchors.verticalCenter: parent.verticalCenter
        role: TypeScale.Small
        color: Theme.text2
        text: root.field
        Accessible.ignored: true
    }

    AppText {
        id: words
        x: label.x + label.implicitWidth + Metrics.gapSmall
        width: cross.x - x - Metrics.gapSmall
        anchors.verticalCenter: parent.verticalCenter
        role: TypeScale.Small
        weight: Font.Medium
        text: root.value
        Accessible.ignored: true
    }

    IconButton {
        id: cross
        anchors.right: parent.right
        anchors.rightMargin: Metrics.gapTiny
        anchors.verticalCenter: parent.verticalCenter
        name: "Retirer le filtre " + root.field
        symbol: "xmark"
        symbolSize: 8
        symbolWeight: "semibold"
        side: root.crossSide
        corner: side / 2
        onClicked: root.removed()
    }
}
