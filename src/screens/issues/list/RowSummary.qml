pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Theme

// The title of an issue and, if both fit, the title of its parent.
Item {
    id: root

    required property string summary
    required property string parentSummary
    property alias font: title.font
    property alias leading: title.leading
    property alias color: title.color

    property real parentWidth: 0
    readonly property bool showsParent: parentSummary !== ""
        && title.implicitWidth + Metrics.gapSmall + parentWidth <= width

    implicitHeight: title.implicitHeight

    RowText {
        id: title
        width: Math.min(implicitWidth, root.width)
        text: root.summary
    }

    When {
        shown: root.parentSummary !== ""

        RowParent {
            x: title.width + Metrics.gapSmall
            anchors.verticalCenter: parent?.verticalCenter
            visible: root.showsParent
            summary: root.parentSummary
            onImplicitWidthChanged: root.parentWidth = implicitWidth
        }
    }
}
