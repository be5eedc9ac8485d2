pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Attachments
import Velmora.Kit

/// Asks whether to delete a file from the issue. The sheet exists only while it is open.
Item {
    id: root

    property attachmentFile file
    property bool isOpen: false

    signal confirmed(file: attachmentFile)

    function ask(file: attachmentFile) {
        root.file = file;
        isOpen = true;
    }

    When {
        shown: root.isOpen

        Item {
            DestructionSheet {
                title: "Supprimer « " + root.file.name + " » ?"
                message: "La pièce jointe sera retirée du ticket pour tout le monde."
                action: "Supprimer de Jira"
                onConfirmed: root.confirmed(root.file)
                onClosed: root.isOpen = false
                Component.onCompleted: open()
            }
        }
    }
}
