pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Model
import Velmora.Theme

// The labels of a row: two chips and how many more there are, or up to four dots where there is no room for names.
Item {
    id: root

    required property issue issue
    required property bool showsNames

    readonly property int count: issue.labels.length
    readonly property int dotCount: Math.min(4, count)
    readonly property real namesWidth: RowFitting.labelsWidth(issue.labels)
    readonly property real dotsWidth: count > 0 ? dotCount * 7 + (dotCount - 1) * 3 : 0

    implicitWidth: showsNames ? namesWidth : dotsWidth
    implicitHeight: Metrics.chipHeight

    Row {
        id: names
        spacing: Metrics.gapTiny

        Repeater {
            model: root.showsNames ? Math.min(2, root.count) : 0

            LabelChip {
                required property int index
                name: root.issue.labels[index] ?? ""
                Accessible.ignored: true
            }
        }

        AppText {
            visible: root.showsNames && root.count > 2
            anchors.verticalCenter: parent.verticalCenter
            role: TypeScale.Caption
            color: Theme.text2
            Accessible.ignored: true
            text: "+" + (root.count - 2)
        }
    }

    Row {
        id: dots
        anchors.verticalCenter: parent.verticalCenter
        spacing: 3

        Repeater {
            model: root.showsNames ? 0 : root.dotCount

            LabelDot {
                required property int index
                name: root.issue.labels[index] ?? ""
                Accessible.ignored: true
            }
        }
    }
}
