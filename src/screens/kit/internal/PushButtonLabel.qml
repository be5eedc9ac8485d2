import QtQuick
import Velmora.Kit

/// The symbol and the words of a button, centred.
Item {
    id: label

    required property string text
    required property string symbol
    required property int weight
    required property color ink

    implicitWidth: line.implicitWidth
    implicitHeight: line.implicitHeight

    Row {
        id: line

        anchors.centerIn: parent
        spacing: 7

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: label.symbol.length > 0
            name: label.symbol
            size: 12.5
            color: label.ink
        }

        AppText {
            text: label.text
            weight: label.weight
            color: label.ink
            Accessible.ignored: true
        }
    }
}
