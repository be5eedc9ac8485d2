import QtQuick
import Velmora.Kit
import Velmora.Theme

/// Tells what is wrong at the top of a page, why, and offers one action against it. Screen readers announce it as an
/// alert.
Rectangle {
    id: root

    required property string symbol
    required property string title
    required property string reason
    required property string action
    required property string actionSymbol

    signal triggered()

    implicitHeight: content.height + 24
    radius: Metrics.radiusBubble
    color: Qt.rgba(Theme.orange.r, Theme.orange.g, Theme.orange.b, 0.14)
    Accessible.role: Accessible.AlertMessage
    Accessible.name: root.title + ". " + root.reason

    Column {
        id: content
        x: 14
        y: 12
        width: parent.width - 28
        spacing: 6

        Row {
            spacing: Metrics.gap

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: root.symbol
                size: 13
                color: Theme.orangeText
            }

            AppText {
                weight: Font.DemiBold
                text: root.title
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
            width: button.width
            height: 4 + button.height

            PushButton {
                id: button
                y: 4
                height: 26
                leftPadding: 11
                symbol: root.actionSymbol
                text: root.action
                onClicked: root.triggered()
            }
        }
    }
}
