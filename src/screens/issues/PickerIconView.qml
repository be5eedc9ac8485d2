pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Theme

// The icon of a picker's row, centred in a square of 20.
Item {
    id: root

    required property pickerIcon icon

    implicitWidth: 20
    implicitHeight: 20

    When {
        shown: root.icon.kind === PickerIcons.Status

        StatusIcon {
            anchors.centerIn: parent
            status: root.icon.status
            size: 14
        }
    }

    When {
        shown: root.icon.kind === PickerIcons.Priority

        PriorityIcon {
            anchors.centerIn: parent
            level: root.icon.level
            size: 14
        }
    }

    When {
        shown: root.icon.kind === PickerIcons.User

        Avatar {
            anchors.centerIn: parent
            user: root.icon.user
            hasUser: root.icon.hasUser
            size: 18
        }
    }

    When {
        shown: root.icon.kind === PickerIcons.Label

        LabelDot {
            anchors.centerIn: parent
            name: root.icon.label
            size: 8
        }
    }

    When {
        shown: root.icon.kind === PickerIcons.Type

        TypeIcon {
            anchors.centerIn: parent
            type: root.icon.type
            size: 12
        }
    }

    When {
        shown: root.icon.kind === PickerIcons.Project

        ProjectBadge {
            anchors.centerIn: parent
            project: root.icon.project
            size: 16
        }
    }

    When {
        shown: root.icon.kind === PickerIcons.Symbol

        Symbol {
            anchors.centerIn: parent
            name: root.icon.symbol
            size: 13
            color: Theme.text2
        }
    }
}
