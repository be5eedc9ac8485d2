pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit

// The placeholder of the list until the first rows arrive.
SkeletonPulse {
    id: root

    Column {
        width: parent.width
        topPadding: 8

        Repeater {
            model: 12

            Item {
                id: line

                required property int index

                width: root.width
                height: 38

                Row {
                    x: 20
                    anchors.verticalCenter: parent.verticalCenter
                    spacing: 14

                    SkeletonBar { width: 14; height: 14; anchors.verticalCenter: parent.verticalCenter }
                    SkeletonBar { width: 54; anchors.verticalCenter: parent.verticalCenter }
                    SkeletonBar { width: 14; height: 14; anchors.verticalCenter: parent.verticalCenter }
                    // Uneven, so that it reads as text.
                    SkeletonBar { width: (line.index * 53) % 260 + 180; anchors.verticalCenter: parent.verticalCenter }
                }

                SkeletonBar {
                    width: 18
                    height: 18
                    anchors.right: parent.right
                    anchors.rightMargin: 20
                    anchors.verticalCenter: parent.verticalCenter
                }
            }
        }
    }
}
