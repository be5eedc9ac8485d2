import QtQuick
import Velmora.Kit
import Velmora.Palette
import Velmora.Theme

// The keys that the palette handles.
Item {
    id: root

    required property CommandPalette commandPalette
    required property bool isDemo

    implicitHeight: 40

    Row {
        x: 18
        anchors.verticalCenter: parent.verticalCenter
        spacing: 16

        PaletteHint {
            keys: "↑↓"
            meaning: "naviguer"
        }

        PaletteHint {
            keys: "↩"
            meaning: "valider"
        }

        PaletteHint {
            visible: !root.commandPalette.isPicker
            keys: root.commandPalette.windowShortcut
            meaning: "nouvelle fenêtre"
        }

        PaletteHint {
            keys: "esc"
            meaning: root.commandPalette.isPicker ? "retour" : "fermer"
        }
    }

    AppText {
        visible: root.isDemo
        anchors.right: parent.right
        anchors.rightMargin: 18
        anchors.verticalCenter: parent.verticalCenter
        role: TypeScale.Caption
        color: Theme.text2
        text: "Mode démo"
    }
}
