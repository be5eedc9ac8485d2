import QtQuick
import Velmora.Attachments
import Velmora.Kit
import Velmora.Theme

/// The name and the size of the file under preview, and what can be done with it.
Item {
    id: root

    required property attachmentFile file
    property bool loading: false

    signal openRequested()
    signal saveRequested()

    implicitHeight: 52

    AppText {
        x: Metrics.gapSection
        y: 8
        width: actions.x - x - Metrics.gapLarge
        weight: Font.DemiBold
        elide: Text.ElideMiddle
        text: root.file.name
        Accessible.role: Accessible.Heading
    }

    AppText {
        x: Metrics.gapSection
        y: 26
        role: TypeScale.Small
        tabular: true
        color: Theme.text2
        text: root.file.sizeText
    }

    Row {
        id: actions

        anchors.right: parent.right
        anchors.rightMargin: Metrics.gapLarge
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.gap

        Spinner {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.loading
        }

        IconButton {
            look: IconButton.Glass
            name: "Enregistrer sous…"
            symbol: "square.and.arrow.down"
            onClicked: root.saveRequested()
        }

        PushButton {
            text: "Ouvrir"
            onClicked: root.openRequested()
        }
    }
}
