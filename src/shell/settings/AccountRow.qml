import QtQuick
import Velmora.Kit
import Velmora.Model
import Velmora.Theme

// The picture, the name and the e-mail address of the signed-in user.
Item {
    id: root

    required property jiraUser user
    required property bool hasUser
    required property string email

    width: parent?.width ?? 0
    height: 56
    visible: hasUser
    Accessible.role: Accessible.StaticText
    Accessible.name: email === "" ? user.name : user.name + ", " + email

    Avatar {
        id: picture
        x: Metrics.gapLarge
        anchors.verticalCenter: parent.verticalCenter
        size: 32
        user: root.user
        hasUser: root.hasUser
        Accessible.ignored: true
    }

    Column {
        anchors.left: picture.right
        anchors.leftMargin: 12
        anchors.right: parent.right
        anchors.rightMargin: Metrics.gapLarge
        anchors.verticalCenter: parent.verticalCenter

        AppText {
            width: parent.width
            weight: Font.Medium
            text: root.user.name
            Accessible.ignored: true
        }

        AppText {
            width: parent.width
            visible: text.length > 0
            role: TypeScale.Small
            color: Theme.text2
            text: root.email
            Accessible.ignored: true
        }
    }
}
