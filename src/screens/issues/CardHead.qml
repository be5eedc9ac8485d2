pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Model
import Velmora.Options
import Velmora.Theme

// The upper line of a card: type and key, and who has the issue.
Item {
    id: root

    required property issue issue

    signal pickRequested(kind: int, cell: Item)

    implicitHeight: 18

    Row {
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.gapSmall

        When {
            shown: root.issue.hasType

            TypeIcon {
                anchors.verticalCenter: parent?.verticalCenter
                type: root.issue.typeOrEmpty
                size: 11
            }
        }

        AppText {
            anchors.verticalCenter: parent.verticalCenter
            role: TypeScale.Badge
            weight: Font.Normal
            tabular: true
            color: Theme.text2
            text: root.issue.key
        }
    }

    PickerCell {
        id: assigneeCell
        // The picture ends with the card's text, the cell round it reaches beyond.
        anchors.right: parent.right
        anchors.rightMargin: -2
        anchors.verticalCenter: parent.verticalCenter
        kind: PropertyOptions.Assignee
        hint: ""
        spoken: "Assigné : " + (root.issue.hasAssignee ? root.issue.assigneeOrEmpty.name : "personne")
        onPressed: root.pickRequested(kind, assigneeCell)

        Avatar {
            anchors.centerIn: parent
            user: root.issue.assigneeOrEmpty
            hasUser: root.issue.hasAssignee
            size: 18
            Accessible.ignored: true
        }
    }
}
