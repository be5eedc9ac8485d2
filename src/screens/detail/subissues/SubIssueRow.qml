pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.Theme

// A sub-issue, which a press opens.
FocusableItem {
    id: root

    required property subIssue row
    required property int keyWidth

    implicitHeight: Metrics.optionRowHeight
    leftPadding: Metrics.gap
    rightPadding: Metrics.gap
    corner: Metrics.radiusRow
    accessibleName: row.key + ", " + row.summary + (row.hasStatus ? ", " + row.status.displayName : "")

    contentItem: Item {
        When {
            shown: root.row.hasStatus

            StatusIcon {
                y: (root.height - height) / 2
                status: root.row.status
                Accessible.ignored: true
            }
        }

        AppText {
            x: root.row.hasStatus ? Metrics.statusIcon + Metrics.gapMedium : 0
            width: root.keyWidth
            anchors.verticalCenter: parent.verticalCenter
            role: TypeScale.Small
            tabular: true
            color: Theme.text2
            text: root.row.key
            Accessible.ignored: true
        }

        AppText {
            x: (root.row.hasStatus ? Metrics.statusIcon + Metrics.gapMedium : 0) + root.keyWidth + Metrics.gapMedium
            width: parent.width - x
            anchors.verticalCenter: parent.verticalCenter
            text: root.row.summary
            Accessible.ignored: true
        }
    }

    background: HoverFill {
        radius: root.corner
        shown: root.lit
        fill: Theme.ink(root.down ? 0.07 : 0.04)
    }
}
