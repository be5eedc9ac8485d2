import QtQuick
import Velmora.Theme

/// A key or a shortcut, as it is written on the keyboard.
Rectangle {
    id: root

    required property string text

    implicitWidth: Math.max(Metrics.keyCapHeight, Math.ceil(label.implicitWidth) + 10)
    implicitHeight: Metrics.keyCapHeight
    radius: Metrics.radiusKeyCap
    color: Theme.keyCapFill
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    AppText {
        id: label

        anchors.centerIn: parent
        text: parent.text
        role: TypeScale.Micro
        color: Theme.text2
        Accessible.ignored: true
    }
}
