pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.State

// Where an issue belongs: its project, its parent and its own key. A long name of the project gives way to the keys.
Item {
    id: root

    required property OpenIssue issue
    readonly property int gap: 7
    readonly property int badge: 16
    readonly property real roomForName: width - badge - chevron.width - 3 * gap - key.width
        - (parentKey.visible ? parentKey.width + chevron.width + 2 * gap : 0)

    // The parent was chosen.
    signal chosen(key: string)

    Row {
        height: root.height
        spacing: root.gap

        When {
            shown: root.issue.hasProject

            ProjectBadge {
                anchors.verticalCenter: parent?.verticalCenter
                size: root.badge
                project: root.issue.project
                Accessible.ignored: true
            }
        }

        AppText {
            width: Math.max(0, Math.min(implicitWidth, root.roomForName))
            anchors.verticalCenter: parent.verticalCenter
            visible: root.issue.hasProject
            text: root.issue.projectName
        }

        CrumbChevron {
            id: chevron
            visible: root.issue.hasProject
        }

        CrumbButton {
            id: parentKey
            anchors.verticalCenter: parent.verticalCenter
            visible: root.issue.parentKey !== ""
            hasType: root.issue.hasParentType
            type: root.issue.parentType
            text: root.issue.parentKey
            accessibleName: "Ticket parent " + text + ", " + root.issue.parentSummary
            hint: root.issue.parentSummary
            onClicked: root.chosen(root.issue.parentKey)
        }

        CrumbChevron {
            visible: parentKey.visible
        }

        CrumbButton {
            id: key
            anchors.verticalCenter: parent.verticalCenter
            isCurrent: true
            text: root.issue.key
            accessibleName: "Copier la clé " + text
            hint: "Copier la clé"
            onClicked: root.issue.run(Commands.Command.CopyKeys)
        }
    }
}
