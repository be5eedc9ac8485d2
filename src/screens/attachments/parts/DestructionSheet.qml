import QtQuick
import Velmora.Kit
import Velmora.Theme

/// Asks before something is destroyed. Only its red button emits `confirmed`. The focus is on the button that cancels.
Sheet {
    id: root

    required property string title
    required property string message
    required property string action

    signal confirmed()

    function confirm() {
        close()
        confirmed()
    }

    name: title
    implicitWidth: 400

    Item {
        width: root.width
        implicitHeight: column.implicitHeight + 2 * Metrics.gapSection

        Column {
            id: column

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.margins: Metrics.gapSection
            spacing: Metrics.gapMedium

            AppText {
                width: parent.width
                role: TypeScale.Headline
                text: root.title
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
            }

            AppText {
                width: parent.width
                color: Theme.text2
                text: root.message
                wrapMode: Text.Wrap
            }

            Row {
                anchors.right: parent.right
                topPadding: Metrics.gap
                spacing: Metrics.gap

                PushButton {
                    text: "Annuler"
                    focus: true
                    onClicked: root.close()
                }

                PushButton {
                    text: root.action
                    destructive: true
                    onClicked: root.confirm()
                }
            }
        }
    }
}
