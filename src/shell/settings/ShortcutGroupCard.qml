pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// The shortcuts of one group.
Column {
    id: root

    required property shortcutGroup modelData

    readonly property real hair: 1 / Screen.devicePixelRatio

    spacing: Metrics.gap

    AppText {
        leftPadding: 4
        weight: Font.DemiBold
        text: root.modelData.title
        Accessible.role: Accessible.Heading
    }

    Rectangle {
        width: root.width
        height: rows.height
        radius: Metrics.radiusBubble
        color: Theme.card
        border.color: Theme.hairline
        border.width: root.hair

        Column {
            id: rows
            width: parent.width

            Repeater {
                model: root.modelData.rows

                Item {
                    id: row

                    required property int index
                    required property shortcutMeaning modelData

                    width: rows.width
                    height: 36
                    Accessible.role: Accessible.ListItem
                    Accessible.name: row.modelData.meaning + " : " + row.modelData.keys

                    Hairline {
                        visible: row.index > 0
                        x: Metrics.gapLarge
                        width: parent.width - 2 * x
                        color: Theme.divider
                    }

                    AppText {
                        x: Metrics.gapLarge
                        anchors.verticalCenter: parent.verticalCenter
                        text: row.modelData.meaning
                        Accessible.ignored: true
                    }

                    AppText {
                        anchors.right: parent.right
                        anchors.rightMargin: Metrics.gapLarge
                        anchors.verticalCenter: parent.verticalCenter
                        role: TypeScale.Small
                        weight: Font.Medium
                        color: Theme.text2
                        text: row.modelData.keys
                        Accessible.ignored: true
                    }
                }
            }
        }
    }
}
