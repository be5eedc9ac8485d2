import QtQuick
import Velmora.Kit

// Shown until the first screen is known.
Item {
    id: root

    Accessible.role: Accessible.Indicator
    Accessible.name: "Démarrage de Velmora"

    Column {
        anchors.centerIn: parent
        spacing: 14

        AppGlyph {
            anchors.horizontalCenter: parent.horizontalCenter
            size: 64
        }

        Spinner {
            anchors.horizontalCenter: parent.horizontalCenter
            size: 16
        }
    }
}
