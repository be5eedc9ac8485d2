import QtQuick
import Velmora.Model
import Velmora.Kit

/// The disc of a person, or, without `hasUser`, the dashed ring of nobody. Its name is its hint.
DrawnIcon {
    id: avatar

    required property jiraUser user
    required property bool hasUser
    property real size: 18
    readonly property string personName: hasUser ? user.name : "Non assigné"

    side: size
    source: hasUser ? Pictures.avatar(user, size) : Pictures.nobody(size)
    Accessible.name: personName

    HoverHandler {
        id: pointer
    }

    HintTip {
        shown: pointer.hovered
        text: avatar.personName
    }
}
