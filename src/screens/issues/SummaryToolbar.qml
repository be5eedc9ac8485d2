import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Theme

// Ways to take an open issue elsewhere.
Row {
    id: root

    required property InspectedIssue issue

    ToolbarCell {
        name: "Copier le nom de branche git"
        symbol: "arrow.triangle.branch"
        ink: Theme.text2
        onClicked: root.issue.copyBranch()
    }

    ToolbarCell {
        name: "Copier le lien"
        symbol: "link"
        ink: Theme.text2
        onClicked: root.issue.copyLink()
    }

    ToolbarCell {
        name: "Ouvrir dans Jira"
        symbol: "safari"
        ink: Theme.text2
        onClicked: root.issue.openInBrowser()
    }

    ToolbarCell {
        name: "Ouvrir dans une nouvelle fenêtre"
        symbol: "macwindow.on.rectangle"
        ink: Theme.text2
        onClicked: root.issue.openWindow()
    }
}
