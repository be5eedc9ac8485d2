import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// The commands that copy a reference to an open issue or open the issue elsewhere. In a window of its own they stand on
// glass.
Item {
    id: root

    required property OpenIssue issue
    property bool inWindow: false

    implicitWidth: cells.width + (inWindow ? 2 * Metrics.capsuleInset : 0)
    implicitHeight: inWindow ? Metrics.capsuleHeight : cells.height

    When {
        shown: root.inWindow

        GlassCapsule {
            anchors.fill: parent
        }
    }

    Row {
        id: cells
        anchors.centerIn: parent

        ToolbarCell {
            name: "Copier le nom de branche"
            hint: Hints.copyBranch
            symbol: "arrow.triangle.branch"
            ink: Theme.text2
            onClicked: root.issue.run(Commands.Command.CopyBranch)
        }

        ToolbarCell {
            name: "Copier le lien"
            hint: Hints.copyLink
            symbol: "link"
            ink: Theme.text2
            onClicked: root.issue.run(Commands.Command.CopyLink)
        }

        ToolbarCell {
            name: "Ouvrir dans Jira"
            hint: Hints.openInBrowser
            symbol: "safari"
            ink: Theme.text2
            onClicked: root.issue.run(Commands.Command.OpenInBrowser)
        }

        ToolbarCell {
            visible: !root.inWindow
            name: "Nouvelle fenêtre"
            hint: Hints.openWindow
            symbol: "macwindow.on.rectangle"
            ink: Theme.text2
            onClicked: root.issue.run(Commands.Command.OpenWindow)
        }
    }
}
