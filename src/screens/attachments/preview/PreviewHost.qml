pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Attachments
import Velmora.Kit

/// Shows the preview in a window of its own while there is one. Place it once on each screen that has a previewer.
Item {
    id: root

    required property AttachmentPreviewer previewer

    When {
        shown: root.previewer.isPreviewing

        Item {
            PreviewWindow {
                previewer: root.previewer
            }
        }
    }
}
