pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.Shell
import Velmora.State
import Velmora.Theme

// One issue in a window of its own.
Window {
    id: root

    required property AppStore store
    required property string key

    title: summary.title
    width: 760
    height: 820
    minimumWidth: 520
    minimumHeight: 480
    color: Theme.content

    Shortcut {
        sequences: ["Ctrl+W"]
        onActivated: root.close()
    }

    IssueDetailView {
        id: summary
        anchors.fill: parent
        focus: true
        inWindow: true
        store: root.store
        key: root.key

        Layer {
            item: summary
            isOpen: true
            kind: Layer.Kind.Content
            onCloseRequested: root.close()
        }
    }

    MenuBarLayer {
        anchors.fill: parent
        store: root.store
        issueKey: root.key
    }
}
