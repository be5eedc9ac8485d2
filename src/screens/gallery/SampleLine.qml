import QtQuick
import Velmora.Kit

/// A line of a form: its label, and the control at its end.
Item {
    id: root

    required property string text
    required property Item control

    width: parent ? parent.width : 0
    height: 28

    AppText {
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
    }

    Item {
        x: root.width - root.control.implicitWidth
        y: (root.height - root.control.implicitHeight) / 2
        data: [root.control]
    }
}
