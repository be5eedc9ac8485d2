pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.Theme

// The title and the properties of an issue.
Column {
    id: root

    required property IssueWindowContent content

    spacing: 2

    AppText {
        width: parent.width
        bottomPadding: Metrics.gapSection
        role: TypeScale.Title1
        wrapMode: Text.Wrap
        text: root.content.issue.summary
        Accessible.role: Accessible.Heading
    }

    PropertyRow {
        width: parent.width
        name: "Statut"
        value: root.content.issue.status.displayName

        StatusIcon {
            anchors.centerIn: parent
            status: root.content.issue.status
            size: 14
        }
    }

    PropertyRow {
        width: parent.width
        name: "Priorité"
        value: root.content.issue.hasPriority ? root.content.issue.priorityOrEmpty.displayName : "Aucune"

        PriorityIcon {
            anchors.centerIn: parent
            level: root.content.issue.priorityLevel
            size: 14
        }
    }

    PropertyRow {
        width: parent.width
        name: "Assigné"
        value: root.content.issue.hasAssignee ? root.content.issue.assigneeOrEmpty.name : "Non assigné"

        Avatar {
            anchors.centerIn: parent
            user: root.content.issue.assigneeOrEmpty
            hasUser: root.content.issue.hasAssignee
            size: 18
        }
    }

    PropertyRow {
        width: parent.width
        visible: root.content.labels !== ""
        name: "Étiquettes"
        value: root.content.labels

        Symbol {
            anchors.centerIn: parent
            name: "tag"
            size: 13
            color: Theme.text2
        }
    }

    PropertyRow {
        width: parent.width
        visible: root.content.projectName !== ""
        name: "Projet"
        value: root.content.projectName

        Symbol {
            anchors.centerIn: parent
            name: "square.stack"
            size: 13
            color: Theme.text2
        }
    }
}
