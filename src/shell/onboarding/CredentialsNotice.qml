import QtQuick
import Velmora.Kit
import Velmora.Theme

// Tells the user that a saved session could not be opened, why, and what to do.
Rectangle {
    id: root

    required property string reason

    signal retried()

    implicitHeight: content.height + 24
    radius: Metrics.radiusBubble
    color: Qt.rgba(Theme.orange.r, Theme.orange.g, Theme.orange.b, 0.14)
    Accessible.role: Accessible.AlertMessage
    Accessible.name: title.text + ". " + root.reason

    Column {
        id: content
        x: 14
        y: 12
        width: parent.width - 28
        spacing: 6

        Row {
            spacing: 8

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: "key.slash"
                size: 13
                color: Theme.orangeText
            }

            AppText {
                id: title
                weight: Font.DemiBold
                text: "Session enregistrée inaccessible"
                Accessible.ignored: true
            }
        }

        AppText {
            width: parent.width
            role: TypeScale.Small
            wrapMode: Text.Wrap
            text: root.reason
            Accessible.ignored: true
        }

        Item {
            width: retry.width
            height: 4 + retry.height

            PushButton {
                id: retry
                y: 4
                height: 26
                leftPadding: 11
                symbol: "arrow.clockwise"
                text: "Réessayer"
                onClicked: root.retried()
            }
        }
    }
}
