import QtQuick
import Velmora.Theme

/// A label: its dot and its name in an outlined capsule.
Rectangle {
    id: root

    required property string name

    implicitWidth: Math.ceil(label.implicitWidth) + 26
    implicitHeight: Metrics.chipHeight
    radius: height / 2
    color: "transparent"
    border.color: Theme.chipOutline
    Accessible.role: Accessible.StaticText
    Accessible.name: name

    Row {
        anchors.verticalCenter: parent.verticalCenter
        x: 7
        spacing: 5

        LabelDot {
            anchors.verticalCenter: parent.verticalCenter
            name: root.name
            Accessible.ignored: true
        }

        AppText {
            id: label

            width: Math.min(implicitWidth, root.width - 26)
            text: root.name
            role: TypeScale.Caption
            weight: Font.Medium
            color: Theme.text2
            Accessible.ignored: true
        }
    }
}
