pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.State

// The menus of a window: their shortcuts, and the menu bar, which exists only while it is shown.
Item {
    id: root

    required property AppStore store
    // The key of the issue that the window shows. Empty in the main window.
    property string issueKey: ""

    MenuBarKeys {
        id: barKeys
        window: root.Window.window
        layer: root
        // Only the main window has a palette.
        onAboutToOpen: if (root.issueKey === "") root.store.closePalette()
        commands: menuCommands
    }

    AppCommands {
        id: menuCommands
        store: root.store
        issueKey: root.issueKey
    }

    Shortcut {
        sequences: ["Ctrl+Q"]
        onActivated: Qt.quit()
    }

    // The conventional key for settings on desktops that define none of their own.
    Shortcut {
        sequences: ["Ctrl+,"]
        onActivated: root.store.run(Commands.Command.OpenSettings)
    }

    LatePart {
        width: root.width
        shown: barKeys.isOpen
        onWanted: setSource("AppMenuBar.qml", { store: root.store, keys: barKeys, commands: menuCommands })
    }
}
