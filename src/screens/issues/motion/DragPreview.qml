import QtQuick
import Velmora.Kit
import Velmora.Model
import Velmora.Theme

// The picture of the dragged issue under the pointer.
GlassPanel {
    id: root

    required property issue issue

    implicitWidth: Math.ceil(line.implicitWidth) + 24
    implicitHeight: line.implicitHeight + 16
    // X11 paints transparent areas white unless a compositor is running, and does not report whether one is.
    radius: Qt.platform.pluginName === "xcb" ? 0 : Metrics.radiusRow
    shadow: "none"
    color: Theme.elevated

    Row {
        id: line
        x: 12
        y: Metrics.gap
        spacing: Metrics.gap

        StatusIcon {
            anchors.verticalCenter: parent.verticalCenter
            status: root.issue.status
            size: 13
        }

        AppText {
            weight: Font.Medium
            text: root.issue.key
        }

        AppText {
            width: Math.min(implicitWidth, 300)
            weight: Font.Medium
            text: root.issue.summary
        }
    }
}
