import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The icon, the title and the count of a sidebar row.
Item {
    id: root

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
        content: root.leading

        Symbol {
            anchors.centerIn: parent
            visible: root.symbol.length > 0
            name: root.symbol
            size: 13.5
            color: root.selected ? Theme.accent : Theme.text2
        }
    }

    AppText {
        id: title

        x: 27
        width: parent.width - x - (number.visible ? number.width + 8 : 0)
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        weight: root.selected ? Font.Medium : Font.Normal
        Accessible.ignored: true
    }

    AppText {
        id: number

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: text.length > 0
        text: root.count
        role: TypeScale.Small
        weight: Font.Medium
        tabular: true
        color: Theme.text2
        Accessible.ignored: true
    }
}
