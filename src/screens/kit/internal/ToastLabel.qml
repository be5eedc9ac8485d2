import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The symbol and the message of a toast. Its implicit width is that of the message on one line.
Item {
    id: root

    required property string message
    required property string symbol
    required property bool isError

    implicitWidth: words.x + Math.ceil(measure.implicitWidth)
    implicitHeight: words.implicitHeight

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        name: root.symbol
        size: 13
        color: root.isError ? Theme.orange : Theme.accent
    }

    AppText {
        id: words

        x: 24
        width: parent.width - x
        text: root.message
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }

    AppText {
        id: measure

        visible: false
        text: root.message
        Accessible.ignored: true
    }
}
