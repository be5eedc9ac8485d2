import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The symbol and the message of a toast. Its implicit width is that of the message on one line.
Item {
    id: label

    required property string message
    required property string symbol
    required property bool isError

    implicitWidth: words.x + Math.ceil(measure.implicitWidth)
    implicitHeight: words.implicitHeight

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        name: label.symbol
        size: 13
        color: label.isError ? Theme.orange : Theme.accent
    }

    AppText {
        id: words

        x: 24
        width: parent.width - x
        text: label.message
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }

    AppText {
        id: measure

        visible: false
        text: label.message
        Accessible.ignored: true
    }
}
