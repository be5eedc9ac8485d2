import QtQuick
import Velmora.Attachments
import Velmora.Kit
import Velmora.Theme

/// A file whose content is not shown: its symbol, its name, its size, and why.
FocusScope {
    id: root

    required property attachmentFile file
    required property string problem

    signal openRequested()

    Column {
        anchors.centerIn: parent
        width: Math.min(parent.width - 48, 460)
        spacing: Metrics.gapLarge

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: root.file.symbol
            size: 72
            color: Theme.text2
        }

        AppText {
            width: parent.width
            role: TypeScale.Title3
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WrapAnywhere
            maximumLineCount: 3
            text: root.file.name
        }

        AppText {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            tabular: true
            color: Theme.text2
            text: root.file.sizeText
        }

        AppText {
            width: parent.width
            visible: text.length > 0
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            color: Theme.text2
            text: root.problem
        }

        PushButton {
            anchors.horizontalCenter: parent.horizontalCenter
            look: PushButton.Prominent
            text: "Ouvrir"
            onClicked: root.openRequested()
        }
    }
}
