pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Palette
import Velmora.Theme

// The keys of the issues that the palette applies to.
Row {
    id: root

    required property CommandPalette commandPalette

    spacing: Metrics.gapSmall

    Repeater {
        model: root.commandPalette.capsules

        Rectangle {
            id: capsule

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
                text: capsule.modelData
            }
        }
    }
}
