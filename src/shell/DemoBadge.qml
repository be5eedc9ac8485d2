import QtQuick
import Velmora.Kit
import Velmora.Theme

// Says that the data is made up.
GlassPanel {
    id: root

    implicitHeight: 47
    radius: Metrics.radiusBubble
    shadow: "capsule"
    color: Theme.glass

    Symbol {
        id: sparkles
        x: 12
        anchors.verticalCenter: parent.verticalCenter
        name: "sparkles"
        size: 14
        color: Theme.accent
    }

    AppText {
        anchors.left: sparkles.right
        anchors.leftMargin: Metrics.gap
        anchors.verticalCenter: parent.verticalCenter
        role: TypeScale.Small
        weight: Font.DemiBold
        text: "Mode démo"
    }
}
