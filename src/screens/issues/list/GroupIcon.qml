pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// The icon of a group, centred in a square.
Item {
    id: root

    required property issueListHeader header

    implicitWidth: Metrics.avatarSmall
    implicitHeight: Metrics.avatarSmall

    When {
        shown: root.header.kind === IssueListEnums.Status

        StatusIcon {
            anchors.centerIn: parent
            Accessible.ignored: true
            status: root.header.statusOrEmpty
        }
    }

    When {
        shown: root.header.kind === IssueListEnums.Assignee

        Avatar {
            anchors.centerIn: parent
            Accessible.ignored: true
            user: root.header.userOrEmpty
            hasUser: root.header.hasUser
            size: Metrics.avatarSmall
        }
    }

    When {
        shown: root.header.kind === IssueListEnums.Priority

        PriorityIcon {
            anchors.centerIn: parent
            Accessible.ignored: true
            level: root.header.level
        }
    }

    When {
        shown: root.header.hasProject

        ProjectBadge {
            anchors.centerIn: parent
            Accessible.ignored: true
            project: root.header.projectOrEmpty
            size: 15
        }
    }

    When {
        shown: root.header.kind === IssueListEnums.All
            || root.header.kind === IssueListEnums.Project && !root.header.hasProject

        Symbol {
            anchors.centerIn: parent
            name: root.header.kind === IssueListEnums.All ? "square.stack" : "folder"
            color: Theme.text2
        }
    }
}
