import QtQuick
import Velmora.Model
import Velmora.Kit

/// A person: the photograph if there is one, and the disc with initials until it is loaded or if there is none. Without
/// `hasUser`, the dashed ring that stands for no person. The name of the person is shown as a hint.
DrawnIcon {
    id: root

    required property jiraUser user
    required property bool hasUser
    property real size: 18
    /// What is said if there is no person.
    property string nobody: "Non assigné"
    readonly property string personName: hasUser ? user.name : nobody

    side: size
    source: !hasUser ? IconAddresses.nobody(size) : picture.isLoaded ? picture.roundSource : IconAddresses.avatar(user, size)
    Accessible.name: personName

    RemotePicture {
        id: picture

        address: root.hasUser ? IconAddresses.avatarAddress(root.user) : ""
    }

    HoverHandler {
        id: pointer
    }

    HintTip {
        shown: pointer.hovered
        text: root.personName
    }
}
