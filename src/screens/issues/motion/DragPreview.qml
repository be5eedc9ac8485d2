import QtQuick
import Velmora.Kit
import Velmora.Model
import Velmora.Theme

// The picture of the dragged issue under the pointer.
Item {
    id: root

    required property issue issue
    // The number of issues that are dragged together.
    required property int count
    // The picture may have transparent areas. Without a compositor X11 paints them white.
    required property bool isComposed
    // The shadow extends this far around the panel.
    readonly property int margin: isComposed ? 28 : 0
    readonly property int summaryMaximum: 300
    readonly property point hotSpot: Qt.point(margin + Metrics.panelPadding, margin + Metrics.panelPadding)

    implicitWidth: panel.width + 2 * margin
    implicitHeight: panel.height + 2 * margin

    GlassPanel {
        id: panel
        x: root.margin
        y: root.margin
        width: Math.ceil(line.implicitWidth) + 2 * Metrics.panelPadding
        height: line.implicitHeight + 2 * Metrics.gap
        radius: root.isComposed ? Metrics.radiusRow : 0
        shadow: root.isComposed ? "cardHover" : "none"
        color: Theme.elevated

        Row {
            id: line
            x: Metrics.panelPadding
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
                width: Math.min(implicitWidth, root.summaryMaximum)
                weight: Font.Medium
                text: root.issue.summary
            }

            Rectangle {
                visible: root.count > 1
                anchors.verticalCenter: parent.verticalCenter
                width: Math.max(height, number.implicitWidth + 10)
                height: 16
                radius: 8
                color: Theme.accentFill

                AppText {
                    id: number
                    anchors.centerIn: parent
                    role: TypeScale.Micro
                    weight: Font.DemiBold
                    tabular: true
                    color: Theme.textOnAccent
                    text: root.count
                }
            }
        }
    }
}
