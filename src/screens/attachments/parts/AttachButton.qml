pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Theme

/// The button that attaches files: a press emits `filesRequested`. The right button, a long press, the menu key,
/// Shift+F10 and the down key open its menu, which also offers the clipboard.
FocusableItem {
    id: root

    property bool menuOpen: false

    signal filesRequested()
    signal pasteRequested()

    implicitHeight: 24
    leftPadding: Metrics.gap
    rightPadding: Metrics.gap
    text: "Joindre"
    hint: "Joindre des fichiers (ou glisse-les sur le ticket)"
    Accessible.description: "Flèche vers le bas pour les autres façons de joindre"
    ContextMenuKey.onPressed: menuOpen = true
    // In the main window, the down key would otherwise move through the issues.
    Keys.onShortcutOverride: event => event.accepted = visualFocus && event.key === Qt.Key_Down
    Keys.onDownPressed: menuOpen = true
    onClicked: filesRequested()
    onPressAndHold: menuOpen = true

    contentItem: Row {
        spacing: Metrics.gapSmall

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: "paperclip"
            size: 11.5
            color: Theme.text1
        }

        AppText {
            anchors.verticalCenter: parent.verticalCenter
            role: TypeScale.Small
            weight: Font.Medium
            text: root.text
            Accessible.ignored: true
        }
    }

    background: HoverFill {
        radius: root.corner
        shown: root.lit
        fill: root.down ? Theme.openFill : Theme.hoverFill
    }

    // Below the button, which takes only the left button.
    PressArea {
        anchors.fill: parent
        z: -1
        acceptedButtons: Qt.RightButton
        onMenuRequested: root.menuOpen = true
    }

    When {
        shown: root.menuOpen

        Item {
            PopupMenu {
                title: root.text
                y: root.height + 4
                onClosed: root.menuOpen = false
                Component.onCompleted: open()

                PopupMenuItem {
                    text: "Choisir des fichiers…"
                    symbol: "folder"
                    onTriggered: root.filesRequested()
                }

                PopupMenuItem {
                    text: "Coller depuis le presse-papiers"
                    symbol: "doc.on.clipboard"
                    onTriggered: root.pasteRequested()
                }
            }
        }
    }
}
