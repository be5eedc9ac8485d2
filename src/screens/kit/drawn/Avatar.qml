import QtQuick
import Velmora.Model
import Velmora.Kit

/// A person: the picture where there is one, until then and otherwise the disc with initials; or, without `hasUser`, the
/// dashed ring of nobody. Its name is its hint.
DrawnIcon {
    id: root

    required property jiraUser user
    required property bool hasUser
    property real size: 18
    readonly property string personName: hasUser ? user.name : "Non assigné"

    side: size
    source: !hasUser ? Pictures.nobody(size) : picture.isLoaded ? picture.roundSource : Pictures.avatar(user, size)
    Accessible.name: personName

    RemotePicture {
        id: picture

        address: root.hasUser ? Pictures.avatarAddress(root.user) : ""
    }

    HoverHandler {
        id: pointer
    }

    HintTip {
        shown: pointer.hovered
        text: root.personName
    }
}
