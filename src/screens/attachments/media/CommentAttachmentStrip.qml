pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Attachments
import Velmora.Kit
import Velmora.State
import Velmora.Theme

/// The files that a comment refers to without showing them in its text. Nothing without such files.
FlowLayout {
    id: root

    required property AppStore store
    required property string issueKey
    required property string commentID
    required property AttachmentPreviewer previewer
    readonly property CommentStripFiles strip: CommentStripFiles {
        store: root.store
        key: root.issueKey
        commentID: root.commentID
    }

    height: implicitHeight
    visible: strip.files.length > 0
    spacing: Metrics.gap
    lineSpacing: Metrics.gap

    Repeater {
        model: root.strip.files

        FileChip {
            required property attachmentFile modelData

            file: modelData
            loading: root.previewer?.loadingID === modelData.id
            onClicked: root.previewer?.preview(modelData)
        }
    }
}
