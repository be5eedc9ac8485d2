pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Theme

// The placeholder of the list until the first rows arrive.
SkeletonPulse {
    id: root

    Column {
        width: parent.width
        topPadding: Metrics.gap

        Repeater {
            model: 12

            Item {
                id: line

                required property int index
                // Uneven, so that it reads as text.
                readonly property int summaryWidth: (index * 53) % 260 + 180

                width: root.width
                height: Metrics.rowHeight

                Row {
                    x: Metrics.contentInset
                    anchors.verticalCenter: parent.verticalCenter
                    spacing: Metrics.gapLarge

                    SkeletonBar { width: Metrics.checkBox; height: width; anchors.verticalCenter: parent.verticalCenter }
                    SkeletonBar { width: Metrics.rowDate; anchors.verticalCenter: parent.verticalCenter }
                    SkeletonBar { width: Metrics.checkBox; height: width; anchors.verticalCenter: parent.verticalCenter }
                    SkeletonBar { width: line.summaryWidth; anchors.verticalCenter: parent.verticalCenter }
                }

                SkeletonBar {
                    width: Metrics.avatar
                    height: width
                    anchors.right: parent.right
                    anchors.rightMargin: Metrics.contentInset
                    anchors.verticalCenter: parent.verticalCenter
                }
            }
        }
    }
}
