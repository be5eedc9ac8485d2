pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Attachments
import Velmora.Kit

/// A place of the grid: the tile of a file, or of an upload.
Item {
    id: root

    required property int index
    required property attachmentFile file
    required property bool isUpload
    required property AttachmentPreviewer previewer
    required property bool isCurrent

    signal pressed()
    signal menuRequested(x: real, y: real)
    signal deletionRequested()

    function preview() {
        if (!isUpload)
            previewer.preview(file);
    }

    function open() {
        if (!isUpload)
            previewer.open(file);
    }

    function requestDeletion() {
        if (!isUpload)
            deletionRequested();
    }

    function openMenu() {
        if (!isUpload)
            menuRequested(width / 2, height / 2);
    }

    function click() {
        pressed();
        previewer.click(file);
    }

    implicitHeight: 139

    When {
        shown: !root.isUpload

        FileTile {
            width: root.width
            file: root.file
            loading: root.previewer.loadingID === root.file.id
            current: root.isCurrent
            onClicked: root.click()
            onMenuRequested: (x, y) => root.menuRequested(x, y)
        }
    }

    When {
        shown: root.isUpload

        UploadTile {
            width: root.width
            current: root.isCurrent
        }
    }
}
