import QtQuick
import Velmora.Kit
import Velmora.Theme

// A word between two lines.
Item {
    id: root

    required property string text
    readonly property real lineWidth: (width - words.width) / 2 - 12

    implicitHeight: 18

    Rectangle {
        y: (root.height - height) / 2
        width: root.lineWidth
        height: 1
        color: Theme.ink(0.12)
    }

    AppText {
        id: words
        anchors.centerIn: parent
        role: TypeScale.Small
        color: Theme.text2
        text: root.text
    }

    Rectangle {
        x: root.width - width
        y: (root.height - height) / 2
        width: root.lineWidth
        height: 1
        color: Theme.ink(0.12)
    }
}
