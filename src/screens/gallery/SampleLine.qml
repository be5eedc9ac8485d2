import QtQuick
import Velmora.Kit

/// A line of a form: its words, and the control at its end.
Item {
    id: line

    required property string text
    required property Item control

    width: parent ? parent.width : 0
    height: 28

    AppText {
        anchors.verticalCenter: parent.verticalCenter
        text: line.text
    }

    Item {
        x: line.width - line.control.implicitWidth
        y: (line.height - line.control.implicitHeight) / 2
        data: [line.control]
    }
}
