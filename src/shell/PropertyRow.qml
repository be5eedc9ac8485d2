import QtQuick
import Velmora.Kit
import Velmora.Theme

// A property of an issue: what it is called, and its value.
Item {
    id: root

    required property string name
    required property string value
    default property alias picture: place.data

    implicitHeight: 30
    Accessible.role: Accessible.StaticText
    Accessible.name: root.name + " : " + root.value

    AppText {
        anchors.verticalCenter: parent.verticalCenter
        width: 110
        color: Theme.text2
        text: root.name
        Accessible.ignored: true
    }

    Item {
        id: place
        x: 118
        width: 20
        height: parent.height
    }

    AppText {
        anchors.left: place.right
        anchors.leftMargin: Metrics.gap
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: root.value
        Accessible.ignored: true
    }
}
