pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Options
import Velmora.Kit
import Velmora.Model
import Velmora.Theme

/// The icon of an option, centred in a square of 20. Most kinds share one image, whose address changes with the icon,
/// because lists reassign their rows while the user types.
Item {
    id: root

    required property optionIcon icon
    readonly property string meaning: OptionIconAddresses.meaning(icon)

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
        sourceSize: OptionIconAddresses.size(root.icon)
        source: OptionIconAddresses.source(root.icon, root.ink())
        Accessible.role: Accessible.Graphic
        Accessible.name: root.meaning
        Accessible.ignored: root.meaning === ""
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
}
