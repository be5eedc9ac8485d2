import QtQuick
import Velmora.Kit
import Velmora.Theme

/// Stands for a medium whose attachment is unknown, so that it does not vanish.
Rectangle {
    id: root

    readonly property int padding: 10

    implicitWidth: Math.ceil(title.implicitWidth) + 2 * padding
    implicitHeight: title.implicitHeight + 2 * padding
    radius: Metrics.radiusRow
    color: Theme.ink(0.05)
    Accessible.role: Accessible.StaticText
    Accessible.name: title.text

    Symbol {
        x: root.padding
        anchors.verticalCenter: parent.verticalCenter
        name: "paperclip"
        size: 12
        color: Theme.text2
    }

    AppText {
        id: title

        x: root.padding
        y: root.padding
        width: root.width - 2 * x
        leftPadding: 20
        color: Theme.text2
        elide: Text.ElideRight
        text: "Pièce jointe (à ouvrir dans Jira)"
        Accessible.ignored: true
    }
}
