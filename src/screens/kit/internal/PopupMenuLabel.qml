import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The content of a row of a menu. `hasMarkRoom` reserves space for a check mark before everything else.
Item {
    id: root

    required property string text
    required property string symbol
    required property Item leading
    required property string shortcut
    required property bool hasMarkRoom
    required property bool isMarked
    required property bool opensMenu
    required property color ink
    required property color quietInk
    readonly property bool hasLeading: symbol.length > 0 || leading !== null
    readonly property real start: hasMarkRoom ? 21 : 0

    implicitWidth: title.x + title.implicitWidth + (tail.width > 0 ? tail.width + 16 : 0)
    implicitHeight: title.implicitHeight

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        width: 12
        visible: root.isMarked
        name: "checkmark"
        size: 9.5
        weight: "medium"
        color: root.ink
    }

    ItemSlot {
        x: root.start
        width: 16
        height: parent.height
        content: root.leading
        visible: root.hasLeading

        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            size: 12
            color: root.quietInk
        }
    }

    AppText {
        id: title

        x: root.start + (root.hasLeading ? 25 : 0)
        width: parent.width - x - tail.width
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        color: root.ink
        Accessible.ignored: true
    }

    Row {
        id: tail

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8

        AppText {
            visible: text.length > 0
            text: root.shortcut
            role: TypeScale.Small
            color: root.quietInk
            Accessible.ignored: true
        }

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.opensMenu
            name: "chevron.right"
            size: 8
            weight: "bold"
            color: root.quietInk
        }
    }
}
