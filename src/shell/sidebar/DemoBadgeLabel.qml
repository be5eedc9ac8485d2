import QtQuick
import Velmora.Kit
import Velmora.Theme

// The text and the symbol of the demo badge.
Item {
    id: root

    Symbol {
        id: sparkles
        x: 12
        anchors.verticalCenter: parent.verticalCenter
        name: "sparkles"
        size: 14
        color: Theme.accent
    }

    Column {
        anchors.left: sparkles.right
        anchors.leftMargin: Metrics.gap
        anchors.verticalCenter: parent.verticalCenter

        AppText {
            role: TypeScale.Small
            weight: Font.DemiBold
            text: "Mode démo"
            Accessible.ignored: true
        }

        AppText {
            role: TypeScale.Caption
            color: Theme.text2
            text: "Connecter Jira…"
            Accessible.ignored: true
        }
    }
}
