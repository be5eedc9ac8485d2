import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The icon, the title and the count of a sidebar row.
Item {
    id: label

    required property string text
    required property string symbol
    required property Item leading
    required property string count
    required property bool selected

    implicitWidth: title.x + title.implicitWidth + number.implicitWidth + 8
    implicitHeight: title.implicitHeight

    ItemSlot {
        width: 18
        height: parent.height
        content: label.leading

        Symbol {
            anchors.centerIn: parent
            visible: label.symbol.length > 0
            name: label.symbol
            size: 13.5
            color: label.selected ? Theme.accent : Theme.text2
        }
    }

    AppText {
        id: title

        x: 27
        width: parent.width - x - (number.visible ? number.width + 8 : 0)
        anchors.verticalCenter: parent.verticalCenter
        text: label.text
        weight: label.selected ? Font.Medium : Font.Normal
        Accessible.ignored: true
    }

    AppText {
        id: number

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: text.length > 0
        text: label.count
        role: TypeScale.Small
        weight: Font.Medium
        tabular: true
        color: Theme.text2
        Accessible.ignored: true
    }
}
