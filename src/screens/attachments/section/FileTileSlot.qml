pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Attachments
import Velmora.Kit

/// A place of the grid: the tile of a file, or of an upload, whose button can have the focus.
FocusScope {
    id: root

    required property int index
    required property attachmentFile file
    required property bool isUpload
    required property uploadFacts upload
    required property AttachmentPreviewer previewer
    required property bool isCurrent

    signal pressed()
    signal menuRequested(x: real, y: real)
    signal deletionRequested()
    signal cancelRequested()

    function preview() {
        if (!isUpload)
            previewer.preview(file);
    }

    function open() {
        if (!isUpload)
            previewer.open(file);
    }

    function requestDeletion() {
        if (isUpload)
            cancelRequested();
        else
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
            upload: root.upload
            current: root.isCurrent
            onCancelRequested: root.cancelRequested()
        }
    }
}
