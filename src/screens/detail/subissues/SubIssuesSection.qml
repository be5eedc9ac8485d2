pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.Theme

// The sub-issues of an issue, and how many of them are done.
Column {
    id: root

    required property OpenIssue issue

    // A sub-issue was chosen.
    signal chosen(key: string)

    spacing: Metrics.gap
    Accessible.role: Accessible.Grouping
    Accessible.name: progress.spokenTitle

    SubIssueProgress {
        id: progress
        rows: root.issue.subIssues
    }

    Row {
        height: 20
        spacing: Metrics.gap

        AppText {
            anchors.verticalCenter: parent.verticalCenter
            weight: Font.DemiBold
            text: "Sous-tickets"
            Accessible.role: Accessible.Heading
        }

        AppText {
            anchors.verticalCenter: parent.verticalCenter
            role: TypeScale.Small
            tabular: true
            color: Theme.text2
            text: progress.title
            Accessible.ignored: true
        }

        ProgressBar {
            anchors.verticalCenter: parent.verticalCenter
            width: 80
            name: "Sous-tickets terminés"
            value: progress.share
        }
    }

    Rectangle {
        width: root.width
        height: rows.height + 2 * rows.y
        radius: Metrics.radiusBubble
        color: Theme.bubble

        Column {
            id: rows
            x: Metrics.gapTiny
            y: Metrics.gapTiny
            width: parent.width - 2 * x

            Repeater {
                model: progress.rows

                SubIssueRow {
                    required property subIssue modelData

                    width: rows.width
                    row: modelData
                    keyWidth: progress.keyWidth
                    onClicked: root.chosen(modelData.key)
                }
            }
        }
    }
}
