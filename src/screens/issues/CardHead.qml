pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Model
import Velmora.Theme

// The upper line of a card: type and key, and who has the issue.
Item {
    id: root

    required property issue issue

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

    Avatar {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        user: root.issue.assigneeOrEmpty
        hasUser: root.issue.hasAssignee
        size: 18
    }
}
