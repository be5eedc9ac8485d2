import QtQuick
import Velmora.Kit
import Velmora.Theme

/// Shown over the area on which files can be dropped while they are dragged over it. It takes no clicks.
Item {
    id: root

    required property bool shown
    required property string text

    opacity: shown ? 1 : 0
    visible: opacity > 0
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: !shown

    Rectangle {
        anchors.fill: parent
        anchors.margins: 10
        radius: Metrics.radiusPane
        color: Theme.accentAt(0.05)
        border.width: 2
        border.color: Theme.accent
    }

    GlassPanel {
        anchors.centerIn: parent
        width: Math.min(label.implicitWidth + 32, root.width - 40)
        height: 40
        radius: height / 2
        shadow: "capsule"
        color: Theme.glassStrong

        Row {
            id: label

            x: 16
            height: parent.height
            spacing: Metrics.gap

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: "paperclip"
                size: 14
                weight: "semibold"
            }

            AppText {
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, root.width - 96)
                role: TypeScale.Body14
                weight: Font.DemiBold
                text: root.text
                Accessible.ignored: true
            }
        }
    }

    Behavior on opacity {
        NumberAnimation {
            duration: Motion.fadeDuration
        }
    }
}
