pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.State

// The menus of a window: their shortcuts, and the bar, made when it is asked for and gone afterwards.
Item {
    id: root

    required property AppStore store
    // The issue whose window this is; empty in the main window.
    property string issueKey: ""

    MenuBarKeys {
        id: barKeys
        window: root.Window.window
        layer: root
        // The palette is the main window's.
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

    // Where the desktop has no key of its own for a program's settings, this one is the custom.
    Shortcut {
        sequences: ["Ctrl+,"]
        onActivated: root.store.settingsRequested()
    }

    LatePart {
        width: root.width
        shown: barKeys.isOpen
        onWanted: setSource("AppMenuBar.qml", { store: root.store, keys: barKeys, commands: menuCommands })
    }
}
