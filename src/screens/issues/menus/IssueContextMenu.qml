pragma ComponentBehavior: Bound

import QtQml
import QtQuick
import QtQuick.Templates as T
import Velmora.Issues
import Velmora.Kit
import Velmora.State

// The commands for one issue, or for all checked issues. The content comes from an `IssueMenu` that was prepared for
// the issue.
PopupMenu {
    id: root

    required property IssueMenu content

    title: content.isSingle ? content.keys[0] : content.copyKeysTitle

    Instantiator {
        model: root.content.sections
        onObjectAdded: (index, object) => root.insertMenu(index, object as T.Menu)
        onObjectRemoved: (index, object) => root.removeMenu(object as T.Menu)

        MenuSectionMenu {
            required property menuSection modelData
            required property int index

            section: modelData
            isReached: root.currentIndex === index
            onChosen: choice => root.content.choose(choice)
        }
    }

    PopupMenuSeparator {}

    PopupMenuItem {
        visible: root.content.isSingle
        height: visible ? implicitHeight : 0
        text: "Ouvrir dans une nouvelle fenêtre"
        symbol: "macwindow.on.rectangle"
        onTriggered: root.content.run(Commands.Command.OpenWindow)
    }

    PopupMenuItem {
        visible: root.content.isSingle
        height: visible ? implicitHeight : 0
        text: "Ouvrir dans Jira"
        symbol: "safari"
        onTriggered: root.content.run(Commands.Command.OpenInBrowser)
    }

    PopupMenuSeparator {
        visible: root.content.isSingle
        height: visible ? implicitHeight : 0
    }

    PopupMenuItem {
        text: root.content.isSingle ? "Copier la clé" : root.content.copyKeysTitle
        symbol: root.content.isSingle ? "number" : "doc.on.doc"
        onTriggered: root.content.run(Commands.Command.CopyKeys)
    }

    PopupMenuItem {
        visible: root.content.isSingle
        height: visible ? implicitHeight : 0
        text: "Copier le lien"
        symbol: "link"
        onTriggered: root.content.run(Commands.Command.CopyLink)
    }

    PopupMenuItem {
        visible: root.content.isSingle
        height: visible ? implicitHeight : 0
        text: "Copier le nom de branche git"
        symbol: "arrow.triangle.branch"
        onTriggered: root.content.run(Commands.Command.CopyBranch)
    }
}
