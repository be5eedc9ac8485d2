import QtQuick
import Velmora.Theme
import Velmora.Kit

/// What a row of a menu shows. `mark` is the symbol at its end, a tick or an arrow.
Item {
    id: label

    required property string text
    required property string symbol
    required property Item leading
    required property string shortcut
    required property string mark
    required property color ink
    required property color quietInk
    readonly property bool hasLeading: symbol.length > 0 || leading !== null

    implicitWidth: title.x + title.implicitWidth + (tail.width > 0 ? tail.width + 16 : 0)
    implicitHeight: title.implicitHeight

    ItemSlot {
        width: 16
        height: parent.height
        content: label.leading
        visible: label.hasLeading

        Symbol {
            anchors.centerIn: parent
            name: label.symbol
            size: 12
            color: label.quietInk
        }
    }

    AppText {
        id: title

        x: label.hasLeading ? 25 : 0
        width: parent.width - x - tail.width
        anchors.verticalCenter: parent.verticalCenter
        text: label.text
        color: label.ink
        Accessible.ignored: true
    }

    Row {
        id: tail

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8

        AppText {
            visible: text.length > 0
            text: label.shortcut
            role: TypeScale.Small
            color: label.quietInk
            Accessible.ignored: true
        }

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: label.mark.length > 0
            name: label.mark
            size: name === "checkmark" ? 10 : 8
            weight: "bold"
            color: label.ink
        }
    }
}
