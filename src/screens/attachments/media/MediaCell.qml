pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Attachments
import Velmora.Kit

/// What one media node shows: a picture, the name of another file, or that the attachment is unknown.
Item {
    id: root

    required property mediaItem item
    required property AttachmentPreviewer previewer

    function preview() {
        if (previewer)
            previewer.preview(item.file);
    }

    implicitHeight: childrenRect.height

    When {
        shown: root.item.isFound && root.item.file.isPicture

        InlinePicture {
            room: root.width
            file: root.item.file
            onClicked: root.preview()
        }
    }

    When {
        shown: root.item.isFound && !root.item.file.isPicture

        InlineFile {
            width: Math.min(implicitWidth, root.width)
            file: root.item.file
            onClicked: root.preview()
        }
    }

    When {
        shown: !root.item.isFound

        UnknownMedia {
            width: Math.min(implicitWidth, root.width)
        }
    }
}
