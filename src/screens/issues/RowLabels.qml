pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Model
import Velmora.Theme

// The labels of a row: two chips and how many more there are, or up to four dots where there is no room for names.
Item {
    id: root

    required property issue issue
    required property bool showsNames

    readonly property real namesWidth: issue.labels.length > 0 ? names.implicitWidth : 0
    readonly property real dotsWidth: issue.labels.length > 0 ? dots.implicitWidth : 0

    implicitWidth: showsNames ? namesWidth : dotsWidth
    implicitHeight: Metrics.chipHeight

    Row {
        id: names
        spacing: Metrics.gapTiny
        opacity: root.showsNames ? 1 : 0

        Repeater {
            model: Math.min(2, root.issue.labels.length)

            LabelChip {
                required property int index
                name: root.issue.labels[index] ?? ""
                Accessible.ignored: true
            }
        }

        AppText {
            visible: root.issue.labels.length > 2
            anchors.verticalCenter: parent.verticalCenter
            role: TypeScale.Caption
            color: Theme.text2
            Accessible.ignored: true
            text: "+" + (root.issue.labels.length - 2)
        }
    }

    Row {
        id: dots
        anchors.verticalCenter: parent.verticalCenter
        spacing: 3
        opacity: root.showsNames ? 0 : 1

        Repeater {
            model: Math.min(4, root.issue.labels.length)

            LabelDot {
                required property int index
                name: root.issue.labels[index] ?? ""
                Accessible.ignored: true
            }
        }
    }
}
