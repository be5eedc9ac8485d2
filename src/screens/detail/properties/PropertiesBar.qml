pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.Options
import Velmora.State
import Velmora.Theme

// The properties of an open issue, each as a chip that changes it.
FlowLayout {
    id: root

    required property AppStore store
    required property OpenIssue issue
    readonly property bool hasLabels: issue.issue.labels.length > 0

    // Another issue is shown, or that of another session: no list or calendar stays open that would change it.
    function begin() {
        status.dismiss();
        priority.dismiss();
        assignee.dismiss();
        labels.dismiss();
        dueDate.dismiss();
    }

    height: implicitHeight
    spacing: Metrics.gap
    lineSpacing: Metrics.gap

    Connections {
        target: root.store

        function onSessionChanged() {
            root.begin();
        }
    }

    PropertyChip {
        id: status
        title: root.issue.statusTitle
        accessibleName: "Statut : " + title
        store: root.store
        kind: Commands.PickerKind.Status
        keys: root.issue.keys
        leading: StatusIcon {
            status: root.issue.issue.status
            Accessible.ignored: true
        }
    }

    PropertyChip {
        id: priority
        title: root.issue.priorityTitle
        accessibleName: "Priorité : " + title
        store: root.store
        kind: Commands.PickerKind.Priority
        keys: root.issue.keys
        leading: PriorityIcon {
            level: root.issue.issue.priorityLevel
            Accessible.ignored: true
        }
    }

    PropertyChip {
        id: assignee
        implicitWidth: Math.min(root.width, Math.ceil(implicitContentWidth) + leftPadding + rightPadding)
        title: root.issue.assigneeTitle
        accessibleName: "Assigné : " + title
        store: root.store
        kind: Commands.PickerKind.Assignee
        keys: root.issue.keys
        leading: Avatar {
            user: root.issue.issue.assigneeOrEmpty
            hasUser: root.issue.issue.hasAssignee
            size: 16
            Accessible.ignored: true
        }
    }

    PropertyChip {
        id: labels
        implicitWidth: Math.min(root.width, Math.ceil(implicitContentWidth) + leftPadding + rightPadding)
        title: root.issue.labelsTitle
        accessibleName: "Étiquettes : " + title
        store: root.store
        kind: Commands.PickerKind.Labels
        keys: root.issue.keys
        leading: Item {
            implicitWidth: root.hasLabels ? dot.implicitWidth : tag.implicitWidth
            implicitHeight: 16

            LabelDot {
                id: dot
                anchors.centerIn: parent
                visible: root.hasLabels
                size: 8
                name: root.hasLabels ? root.issue.issue.labels[0] : ""
                Accessible.ignored: true
            }

            Symbol {
                id: tag
                anchors.centerIn: parent
                visible: !root.hasLabels
                name: "tag"
                size: 12
            }
        }
    }

    DueDateChip {
        id: dueDate
        issue: root.issue
    }

    When {
        shown: root.issue.issue.hasType

        TypeCapsule {
            width: Math.min(root.width, implicitWidth)
            type: root.issue.issue.typeOrEmpty
        }
    }
}
