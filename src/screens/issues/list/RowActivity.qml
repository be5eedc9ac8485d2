pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// The latest event of an issue, shown at the end of its row in a recap.
Item {
    id: root

    required property issueListBadge badge

    implicitHeight: Metrics.smallButton
    Accessible.role: Accessible.StaticText
    Accessible.name: root.badge.tooltip

    When {
        shown: root.badge.hasStatus

        StatusIcon {
            y: (root.height - height) / 2
            status: root.badge.statusOrEmpty
            Accessible.ignored: true
        }
    }

    When {
        shown: root.badge.hasUser

        Avatar {
            y: (root.height - height) / 2
            user: root.badge.userOrEmpty
            hasUser: true
            size: Metrics.avatarSmall
            Accessible.ignored: true
        }
    }

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        visible: root.badge.symbol !== ""
        name: root.badge.symbol
        size: 12
        color: Theme.text2
    }

    AppText {
        x: Metrics.avatarSmall + Metrics.gapTiny
        width: date.x - x - Metrics.gapSmall
        anchors.verticalCenter: parent.verticalCenter
        role: TypeScale.Small
        color: Theme.text2
        text: root.badge.label
        Accessible.ignored: true
    }

    AppText {
        id: date
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        role: TypeScale.Small
        tabular: true
        color: Theme.text2
        text: root.badge.dateText
        Accessible.ignored: true
    }

    HoverHandler {
        id: pointer
    }

    HintTip {
        shown: pointer.hovered
        text: root.badge.tooltip
    }
}
