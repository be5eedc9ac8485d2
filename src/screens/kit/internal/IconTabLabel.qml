import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The symbol and the title of an `IconTab`.
Item {
    id: root

    required property string text
    required property string symbol
    required property bool on

    implicitWidth: title.implicitWidth
    implicitHeight: title.y + title.implicitHeight + 9

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 9
        name: root.symbol
        size: 16
        color: !root.enabled ? Theme.text4 : root.on ? Theme.accent : Theme.text2
    }

    AppText {
        id: title

        anchors.horizontalCenter: parent.horizontalCenter
        y: 31
        role: TypeScale.Small
        color: !root.enabled ? Theme.text4 : root.on ? Theme.accentText : Theme.text2
        text: root.text
        Accessible.ignored: true
    }
}
