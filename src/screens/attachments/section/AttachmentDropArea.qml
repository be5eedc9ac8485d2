import QtQuick
import Velmora.Attachments
import Velmora.Kit

/// Uploads the files that are dropped on it, and tells so while they are dragged over it. It covers the whole screen of
/// an issue.
DropArea {
    id: root

    required property IssueFiles files

    onEntered: drag => drag.accepted = LocalFiles.among(drag.urls).length > 0
    onDropped: drop => {
        if (LocalFiles.among(drop.urls).length > 0)
            drop.accept(Qt.CopyAction);
        files.upload(drop.urls);
    }

    DropOverlay {
        anchors.fill: parent
        shown: root.containsDrag
        text: root.files.dropText
    }
}
