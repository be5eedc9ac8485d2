import QtQuick
import Velmora.Kit
import Velmora.Theme

// The keys that count in a picker.
Item {
    id: root

    required property bool isDemo

    implicitHeight: 40

    Row {
        x: 18
        anchors.verticalCenter: parent.verticalCenter
        spacing: 16

        KeyHint {
            keys: "↑↓"
            meaning: "naviguer"
        }

        KeyHint {
            keys: "↩"
            meaning: "valider"
        }

        KeyHint {
            keys: "esc"
            meaning: "fermer"
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
