pragma ComponentBehavior: Bound
import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The content of a row of a menu. `hasMarkRoom` reserves space for a check mark before everything else. The title is
/// one line, which begins at the left even if its text runs from right to left.
Item {
    id: root

    required property string text
    required property string symbol
    required property Item leading
    required property string shortcut
    required property bool hasMarkRoom
    required property bool hasLeading
    required property bool isMarked
    required property bool opensMenu
    required property bool isHighlighted
    required property color ink
    required property color quietInk
    readonly property real start: hasMarkRoom ? 21 : 0


    When {
        shown: root.isMarked

        Symbol {
            y: Math.floor((root.height - height) / 2)
            width: 12
            name: "checkmark"
            size: 9.5
            weight: "medium"
            color: root.ink
        }
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
        width: parent.width - x - (tail.width > 0 ? tail.width + 8 : 0)
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignLeft
        maximumLineCount: 1
        text: root.text
        color: root.ink
        Accessible.ignored: true
    }

    HintTip {
        shown: root.isHighlighted && title.truncated
        text: root.text
    }

    Row {
        id: tail

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8

        When {
            shown: root.shortcut.length > 0

            AppText {
                text: root.shortcut
                role: TypeScale.Small
                color: root.quietInk
                Accessible.ignored: true
            }
        }

        When {
            shown: root.opensMenu

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: "chevron.right"
                size: 8
                weight: "bold"
                color: root.quietInk
            }
        }
    }
}
