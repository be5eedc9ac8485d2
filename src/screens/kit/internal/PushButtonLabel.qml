import QtQuick
import Velmora.Kit

/// The symbol and the text of a button, centred.
Item {
    id: root

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
            visible: root.symbol.length > 0
            name: root.symbol
            size: 12.5
            color: root.ink
        }

        AppText {
            text: root.text
            weight: root.weight
            color: root.ink
            Accessible.ignored: true
        }
    }
}
