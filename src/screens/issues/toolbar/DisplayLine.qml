import QtQuick
import Velmora.Kit

// A label and, at the end of the line, the control that belongs to it.
Item {
    id: root

    required property string text

    default property alias control: slot.data
    readonly property int lineHeight: 32

    implicitHeight: root.lineHeight

    AppText {
        anchors.verticalCenter: parent.verticalCenter
        width: root.width - slot.width
        text: root.text
        Accessible.ignored: true
    }

    Item {
        id: slot
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: childrenRect.width
        height: childrenRect.height
    }
}
