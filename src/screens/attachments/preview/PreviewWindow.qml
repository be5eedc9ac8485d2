pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Attachments
import Velmora.Kit
import Velmora.Theme

/// The preview of a file. Space, Escape and Ctrl+W close it, and the left and right keys go through the files of the
/// issue.
Window {
    id: root

    required property AttachmentPreviewer previewer
    readonly property attachmentFile file: previewer.shown.file

    function open() {
        const place = previewer.placeOfPreview(Qt.size(920, 700));
        setGeometry(place.x, place.y, place.width, place.height);
        show();
    }

    title: file.name
    minimumWidth: 360
    minimumHeight: 280
    color: Theme.content
    onClosing: previewer.close()
    Component.onCompleted: open()

    Shortcut {
        sequences: ["Ctrl+W"]
        onActivated: root.previewer.close()
    }

    FocusScope {
        anchors.fill: parent
        focus: true
        Keys.onSpacePressed: root.previewer.close()
        Keys.onEscapePressed: root.previewer.close()
        Keys.onLeftPressed: root.previewer.step(-1)
        Keys.onRightPressed: root.previewer.step(1)
        Keys.onUpPressed: root.previewer.step(-1)
        Keys.onDownPressed: root.previewer.step(1)

        PreviewHeader {
            id: header

            width: parent.width
            file: root.file
            loading: root.previewer.loadingID.length > 0
            onOpenRequested: root.previewer.open(root.file)
            onSaveRequested: root.previewer.save(root.file)
        }

        Hairline {
            anchors.bottom: header.bottom
            width: parent.width
            color: Theme.divider
        }

        PreviewContent {
            id: content

            anchors.top: header.bottom
            anchors.bottom: parent.bottom
            width: parent.width
            focus: true
            previewer: root.previewer
        }
    }
}
