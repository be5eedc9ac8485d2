import QtQuick
import Velmora.Kit
import Velmora.Theme

/// Stands for a medium whose attachment is unknown, so that it does not vanish.
Rectangle {
    id: root

    implicitWidth: 20 + label.implicitWidth
    implicitHeight: 20 + label.implicitHeight
    radius: Metrics.radiusRow
    color: Theme.ink(0.05)
    Accessible.role: Accessible.StaticText
    Accessible.name: title.text

    Row {
        id: label

        x: 10
        y: 10
        spacing: Metrics.gapSmall

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: "paperclip"
            size: 12
            color: Theme.text2
        }

        AppText {
            id: title

            width: Math.min(implicitWidth, root.width - x - 20)
            color: Theme.text2
            text: "Pièce jointe (à ouvrir dans Jira)"
            Accessible.ignored: true
        }
    }
}
