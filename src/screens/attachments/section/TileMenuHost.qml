pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Attachments
import Velmora.Kit

/// The context menu of a file. It exists only while it is open.
Item {
    id: root

    required property AttachmentPreviewer previewer

    property attachmentFile file
    property bool isOpen: false
    property point place

    signal deletionRequested(file: attachmentFile)

    function open(file: attachmentFile, place: point) {
        root.file = file;
        root.place = place;
        isOpen = true;
    }

    When {
        shown: root.isOpen

        Item {
            PopupMenu {

                title: root.file.name
                onClosed: root.isOpen = false
                Component.onCompleted: popup(root, root.place.x, root.place.y)

                PopupMenuItem {
                    text: "Aperçu"
                    symbol: "photo"
                    onTriggered: root.previewer.preview(root.file)
                }

                PopupMenuItem {
                    text: "Ouvrir"
                    symbol: "arrow.up.forward.app"
                    onTriggered: root.previewer.open(root.file)
                }

                PopupMenuItem {
                    text: "Enregistrer sous…"
                    symbol: "square.and.arrow.down"
                    onTriggered: root.previewer.save(root.file)
                }

                PopupMenuItem {
                    text: root.previewer.revealTitle
                    symbol: "folder"
                    onTriggered: root.previewer.reveal(root.file)
                }

                PopupMenuSeparator {}

                PopupMenuItem {
                    text: "Supprimer…"
                    symbol: "trash"
                    destructive: true
                    onTriggered: root.deletionRequested(root.file)
                }
            }
        }
    }
}
