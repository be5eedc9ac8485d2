import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The current choice of a menu picker, and the symbol that indicates further choices.
Item {
    id: root

    required property string text
    required property color ink

    implicitWidth: words.implicitWidth + 6 + sign.implicitWidth
    implicitHeight: words.implicitHeight

    AppText {
        id: words

        width: parent.width - sign.width - 6
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        color: root.ink
        Accessible.ignored: true
    }

    Symbol {
        id: sign

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        name: "shell.popup"
        size: 10
        color: root.enabled ? Theme.text2 : Theme.text4
    }
}
