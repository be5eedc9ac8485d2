pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.Palette
import Velmora.Shell
import Velmora.State
import Velmora.Theme

// One issue in a window of its own, with its palette and the toasts.
Window {
    id: root

    required property AppStore store
    required property string key

    title: detail.title
    width: 760
    height: 820
    minimumWidth: 520
    minimumHeight: 480
    color: Theme.content

    Shortcut {
        sequences: ["Ctrl+W"]
        onActivated: root.close()
    }

    FocusScope {
        id: content

        anchors.fill: parent
        focus: true

        Layer {
            item: content
            isOpen: true
            kind: Layer.Kind.Content
            // While the user types, Escape only leaves the field.
            closesOnEscape: false
        }

        KeyMonitorModifier {
            handler: KeyMonitor {
                window: root
                store: root.store
                commands: menus.commands
            }
        }

        IssueDetailView {
            id: detail
            anchors.fill: parent
            focus: true
            inWindow: true
            store: root.store
            key: root.key
            onClosed: root.close()
        }
    }

    PaletteLayer {
        id: palette
        anchors.fill: parent
        store: root.store
        issueKey: root.key
    }

    ToastStack {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        // The main window shows them as well, and need not be seen twice.
        visible: root.active
        toasts: root.store.toasts
        // Above the box for comments: a toast in front of it would take its clicks.
        bottomGap: Math.max(Metrics.toastBottom, detail.footHeight + Metrics.gap)
        onDismissed: id => root.store.dismissToast(id)
    }

    MenuBarLayer {
        id: menus
        anchors.fill: parent
        store: root.store
        issueKey: root.key
    }

    Connections {
        target: menus.commands

        function onPaletteRequested(command) {
            palette.request(command);
        }
    }
}
