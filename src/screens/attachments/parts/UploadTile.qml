import QtQuick
import Velmora.Attachments
import Velmora.Kit
import Velmora.Theme

/// The tile of a file that is being uploaded, with how much was sent once that is known, and a button that cancels the
/// upload.
Rectangle {
    id: root

    required property uploadFacts upload
    property bool current: false
    /// The spinner turns. False for a stored picture.
    property bool spins: true

    signal cancelRequested()

    implicitWidth: 141
    implicitHeight: 139
    radius: Metrics.radiusBubble
    color: Theme.bubble

    Accessible.role: Accessible.ListItem
    Accessible.name: upload.spokenName
    Accessible.description: upload.progressText
    Accessible.focusable: true
    Accessible.focused: root.current

    Column {
        anchors.centerIn: parent
        spacing: 11

        Spinner {
            anchors.horizontalCenter: parent.horizontalCenter
            size: 14
            running: root.spins
            Accessible.ignored: true
        }

        AppText {
            anchors.horizontalCenter: parent.horizontalCenter
            role: TypeScale.Caption
            color: Theme.text2
            text: "Envoi…"
            Accessible.ignored: true
        }
    }

    ProgressBar {
        anchors.horizontalCenter: parent.horizontalCenter
        y: parent.height - 24
        width: parent.width - 40
        visible: root.upload.hasFraction
        name: root.upload.spokenName
        value: root.upload.fraction
        // The tile tells it in larger steps.
        Accessible.ignored: true
    }

    IconButton {
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: 6
        symbol: "xmark"
        name: root.upload.cancelName
        onClicked: root.cancelRequested()
    }

    FocusRing {
        shown: root.current
        corner: root.radius
    }
}
