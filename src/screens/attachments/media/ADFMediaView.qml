pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Attachments

/// The attachments that a "media", "mediaSingle" or "mediaGroup" node of a document stands for, one below the other.
Column {
    id: root

    required property AttachmentPreviewer previewer
    property alias files: found.files
    property alias node: found.node

    spacing: 8
    // A document passes its media to screen readers only if they are named.
    Accessible.role: Accessible.Grouping
    Accessible.name: "Fichiers dans le texte"

    MediaFiles {
        id: found
    }

    Repeater {
        model: found.items

        MediaCell {
            required property mediaItem modelData

            width: root.width
            item: modelData
            previewer: root.previewer
        }
    }
}
