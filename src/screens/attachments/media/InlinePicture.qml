import QtQuick
import Velmora.Attachments
import Velmora.Kit
import Velmora.Theme

/// A picture inside a text, at most 560 wide and 340 high, and at most as wide as the text. A press previews it.
FocusableItem {
    id: root

    required property attachmentFile file
    required property real room
    readonly property real widest: Math.min(560, room)
    readonly property size natural: picture.pictureSize
    readonly property RemoteImage picture: RemoteImage {
        address: root.file.picture
        crops: false
        corner: root.corner

        Rectangle {
            anchors.fill: parent
            radius: root.corner
            color: "transparent"
            border.width: 1
            border.color: Theme.ink(0.08)
        }
    }
    readonly property real fitting: natural.width > 0 && natural.height > 0
                                    ? Math.min(widest / natural.width, 340 / natural.height) : 0

    implicitWidth: fitting > 0 ? Math.max(1, natural.width * fitting) : Math.min(200, widest)
    implicitHeight: fitting > 0 ? Math.max(1, natural.height * fitting) : 120
    corner: Metrics.radiusPanel
    accessibleName: file.name
    hint: file.inlineHint

    contentItem: picture

    background: Rectangle {
        visible: !root.picture.isLoaded
        radius: root.corner
        color: Theme.ink(0.05)
    }
}
