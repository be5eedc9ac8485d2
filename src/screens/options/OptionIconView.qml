pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Options
import Velmora.Kit
import Velmora.Model
import Velmora.Theme

/// The icon of an option, centred in a square of 20. Most kinds share one image, whose address changes with the icon,
/// because lists reassign their rows while the user types. `initialsOnly` shows people without photographs, at the size
/// of icons in menus.
Item {
    id: root

    required property optionIcon icon
    property bool initialsOnly: false
    readonly property bool isPerson: icon.kind === OptionIcons.User
    readonly property string meaning: OptionIconAddresses.meaning(icon)

    function initials(): url {
        return icon.hasUser ? IconAddresses.avatar(icon.user, 16) : IconAddresses.nobody(16);
    }

    function ink(): color {
        if (root.icon.kind === OptionIcons.Status)
            return Theme.done
        if (root.icon.kind !== OptionIcons.Priority)
            return Theme.text2
        return root.icon.level === Model.PriorityLevel.None ? Theme.neutral : Theme.text1
    }

    implicitWidth: 20
    implicitHeight: 20

    Image {
        anchors.centerIn: parent
        width: sourceSize.width
        height: sourceSize.height
        sourceSize: root.isPerson && root.initialsOnly ? Qt.size(16, 16) : OptionIconAddresses.size(root.icon)
        source: root.isPerson && root.initialsOnly ? root.initials() : OptionIconAddresses.source(root.icon, root.ink())
        Accessible.role: Accessible.Graphic
        Accessible.name: root.meaning
        Accessible.ignored: root.meaning === ""
    }

    When {
        shown: root.isPerson && !root.initialsOnly

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
}
