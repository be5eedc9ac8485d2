pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Theme

// For which issues the picker is open, and what it changes.
Item {
    id: root

    required property Picker picker

    implicitHeight: 34

    Row {
        x: 18
        y: 14
        height: 20
        spacing: Metrics.gapSmall

        Repeater {
            model: root.picker.caps

            Rectangle {
                id: cap

                required property string modelData

                width: label.implicitWidth + 16
                height: 20
                radius: 10
                color: Theme.keyCapFill

                AppText {
                    id: label
                    anchors.centerIn: parent
                    role: TypeScale.Caption
                    weight: Font.Medium
                    tabular: true
                    color: Theme.text2
                    text: cap.modelData
                }
            }
        }

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.right"
            size: 9
            weight: "bold"
            color: Theme.text2
        }

        AppText {
            anchors.verticalCenter: parent.verticalCenter
            role: TypeScale.Small
            weight: Font.Medium
            text: root.picker.title
        }
    }
}
