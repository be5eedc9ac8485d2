import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Theme

// The placeholder in a column without cards.
DashedBox {
    id: root

    radius: Metrics.radiusPanel
    color: Theme.ink(0.08)

    AppText {
        anchors.centerIn: parent
        role: TypeScale.Nano
        color: Theme.text2
        text: "Déposer ici"
    }
}
