import QtQuick
import Velmora.Kit
import Velmora.Theme

// The title of an issue and, where both fit, its parent's.
Item {
    id: root

    required property string summary
    required property string parentSummary

    readonly property bool showsParent: parentSummary !== ""
        && title.implicitWidth + Metrics.gapSmall + parentGroup.implicitWidth <= width

    implicitHeight: title.implicitHeight

    AppText {
        id: title
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, root.width)
        role: TypeScale.Body
        weight: Font.Medium
        text: root.summary
        Accessible.ignored: true
        elide: Text.ElideRight
    }

    Row {
        id: parentGroup
        visible: root.showsParent
        anchors.left: title.right
        anchors.leftMargin: Metrics.gapSmall
        anchors.verticalCenter: parent.verticalCenter
        spacing: 3

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.right"
            size: 8
            weight: "bold"
            color: Theme.text3
        }

        AppText {
            anchors.verticalCenter: parent.verticalCenter
            role: TypeScale.Small
            color: Theme.text3
            text: root.parentSummary
            Accessible.ignored: true
        }
    }
}
