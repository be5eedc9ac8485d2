import QtQuick
import Velmora.Attachments
import Velmora.Kit
import Velmora.Theme

/// A file under a comment: a small picture, the name and the size.
FocusableItem {
    id: root

    required property attachmentFile file
    property bool loading: false

    implicitHeight: 36
    corner: Metrics.radiusPanel
    accessibleName: file.name
    hint: file.inlineHint
    Accessible.description: file.sizeText

    contentItem: FileChipLabel {
        file: root.file
        loading: root.loading
    }

    background: Rectangle {
        radius: root.corner
        color: Theme.ink(root.down ? 0.09 : root.lit ? 0.07 : 0.045)
    }
}
