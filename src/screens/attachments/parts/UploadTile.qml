import QtQuick
import Velmora.Kit
import Velmora.Theme

/// The tile of a file that is being uploaded.
Rectangle {
    id: root

    property bool current: false
    /// The spinner turns. False for a stored picture.
    property bool spins: true

    implicitWidth: 141
    implicitHeight: 139
    radius: Metrics.radiusBubble
    color: Theme.bubble

    Accessible.role: Accessible.ListItem
    Accessible.name: label.text
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
            id: label

            anchors.horizontalCenter: parent.horizontalCenter
            role: TypeScale.Caption
            color: Theme.text2
            text: "Envoi…"
            Accessible.ignored: true
        }
    }

    FocusRing {
        shown: root.current
        corner: root.radius
    }
}
