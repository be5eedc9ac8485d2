pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Attachments
import Velmora.Kit
import Velmora.State
import Velmora.Theme

/// The files of an issue: a header with the button that attaches, and the tiles or the text that there are none.
FocusScope {
    id: root

    required property AppStore store
    required property AttachmentPreviewer previewer
    required property string issueKey
    readonly property IssueFiles issueFiles: IssueFiles {
        store: root.store
        key: root.issueKey
    }
    readonly property FileImport importer: FileImport {
        key: root.issueKey
        window: root.Window.window
        onChosen: (key, files) => root.issueFiles.uploadTo(key, files)
    }

    /// A tile has the focus and should be in sight, in the coordinates of the section.
    signal revealRequested(box: rect)

    implicitHeight: header.height + 10 + (tiles.visible ? tiles.height : nothing.height)
    Accessible.role: Accessible.Grouping
    Accessible.name: "Pièces jointes"

    Item {
        id: header

        width: parent.width
        height: 24

        AppText {
            id: title

            anchors.verticalCenter: parent.verticalCenter
            weight: Font.DemiBold
            text: "Pièces jointes"
            Accessible.role: Accessible.Heading
        }

        AppText {
            anchors.left: title.right
            anchors.leftMargin: Metrics.gap
            anchors.verticalCenter: parent.verticalCenter
            visible: root.issueFiles.count > 0
            role: TypeScale.Small
            tabular: true
            color: Theme.text2
            text: root.issueFiles.count
        }

        AttachButton {
            anchors.right: parent.right
            anchors.rightMargin: -8
            enabled: !root.importer.importing
            onFilesRequested: root.importer.choose()
            onPasteRequested: root.issueFiles.paste()
        }
    }

    AppText {
        id: nothing

        anchors.top: header.bottom
        anchors.topMargin: 10
        width: parent.width
        visible: !tiles.visible
        role: TypeScale.Small
        color: Theme.text2
        wrapMode: Text.Wrap
        text: "Aucune pièce jointe. Glisse des fichiers ici ou utilise « Joindre »."
    }

    TileGrid {
        id: tiles

        anchors.top: header.bottom
        anchors.topMargin: 10
        width: parent.width
        visible: root.issueFiles.tileCount > 0
        files: root.issueFiles
        previewer: root.previewer
        onRevealRequested: box => root.revealRequested(tiles.mapToItem(root, box))
    }
}
