import QtQuick
import Velmora.Kit
import Velmora.Model
import Velmora.Theme

// The picture of an issue under the pointer while it is dragged.
GlassPanel {
    id: root

    required property issue issue

    implicitWidth: Math.ceil(line.implicitWidth) + 24
    implicitHeight: line.implicitHeight + 16
    // X11 paints white what is transparent, unless something composes its windows, and does not say whether anything does.
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
