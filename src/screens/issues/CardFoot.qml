pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Model
import Velmora.Options
import Velmora.Theme

// The lower line of a card: priority, due date and the first two labels, the last of which gives way to the edge.
Row {
    id: root

    required property issue issue
    required property string dueText
    required property bool isOverdue
    required property string dueTooltip

    signal pickRequested(kind: int, cell: Item)

    height: 20
    spacing: Metrics.gapSmall

    PickerCell {
        id: priorityCell
        height: 20
        kind: PropertyOptions.Priority
        hint: Pictures.priorityName(root.issue.priorityLevel)
        spoken: "Priorité : " + hint
        onPressed: root.pickRequested(kind, priorityCell)

        Rectangle {
            anchors.fill: parent
            radius: Metrics.radiusKeyCap
            color: "transparent"
            border.color: Theme.ink(0.1)
        }

        PriorityIcon {
            anchors.centerIn: parent
            level: root.issue.priorityLevel
            size: 12
            Accessible.ignored: true
        }
    }

    When {
        shown: root.issue.hasDueDate

        DueBadge {
            anchors.verticalCenter: parent?.verticalCenter
            text: root.dueText
            late: root.isOverdue

            HoverHandler {
                id: overDue
            }

            HintTip {
                shown: overDue.hovered
                text: root.dueTooltip
            }
        }
    }

    Repeater {
        model: Math.min(2, root.issue.labels.length)

        LabelChip {
            required property int index

            anchors.verticalCenter: parent?.verticalCenter
            width: Math.max(26, Math.min(implicitWidth, root.width - x))
            name: root.issue.labels[index] ?? ""
        }
    }
}
