import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The picture of a tile with its outline, and the title below it.
Item {
    id: root

    required property string text
    required property Item picture
    required property real corner
    required property bool on
    required property bool lit

    implicitWidth: title.implicitWidth
    implicitHeight: title.y + title.implicitHeight

    ItemSlot {
        id: slot

        x: (root.width - width) / 2
        width: 92
        height: 60
        content: root.picture
        opacity: root.enabled ? 1 : 0.45
    }

    // The outline is drawn around the picture.
    Rectangle {
        anchors.fill: slot
        anchors.margins: -border.width
        radius: root.corner + border.width
        color: "transparent"
        border.pixelAligned: false
        border.width: root.on ? 2.5 : 1
        border.color: root.on ? Theme.accent : Theme.ink(root.lit ? 0.3 : 0.15)
    }

    AppText {
        id: title

        anchors.horizontalCenter: parent.horizontalCenter
        y: 67
        text: root.text
        role: TypeScale.Small
        weight: root.on ? Font.Medium : Font.Normal
        color: !root.enabled ? Theme.text4 : root.on ? Theme.text1 : Theme.text2
        Accessible.ignored: true
    }
}
