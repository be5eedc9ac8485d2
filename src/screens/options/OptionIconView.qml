pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Options
import Velmora.Kit
import Velmora.Theme

/// The icon of an option, centred in a square of 20.
Item {
    id: root

    required property optionIcon icon

    implicitWidth: 20
    implicitHeight: 20

    When {
        shown: root.icon.kind === OptionIcons.Status

        StatusIcon {
            anchors.centerIn: parent
            status: root.icon.status
            size: 14
        }
    }

    When {
        shown: root.icon.kind === OptionIcons.Priority

        PriorityIcon {
            anchors.centerIn: parent
            level: root.icon.level
            size: 14
        }
    }

    When {
        shown: root.icon.kind === OptionIcons.User

        Avatar {
            anchors.centerIn: parent
            user: root.icon.user
            hasUser: root.icon.hasUser
            size: 18
        }
    }

    When {
        shown: root.icon.kind === OptionIcons.Label

        LabelDot {
            anchors.centerIn: parent
            name: root.icon.label
            size: 8
        }
    }

    When {
        shown: root.icon.kind === OptionIcons.Type

        TypeIcon {
            anchors.centerIn: parent
            type: root.icon.type
            size: 12
        }
    }

    When {
        shown: root.icon.kind === OptionIcons.Project

        ProjectBadge {
            anchors.centerIn: parent
            project: root.icon.project
            size: 16
        }
    }

    When {
        shown: root.icon.kind === OptionIcons.Symbol

        Symbol {
            anchors.centerIn: parent
            name: root.icon.symbol
            size: 13
            color: Theme.text2
        }
    }
}
