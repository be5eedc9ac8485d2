pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.State

// The menu bar of a window, made when it is asked for and gone afterwards.
Item {
    id: root

    required property AppStore store

    MenuBarKeys {
        id: barKeys
        window: root.Window.window
        layer: root
        onAboutToOpen: root.store.closePalette()
        onChosen: command => commands.run(command)
    }

    AppCommands {
        id: commands
        store: root.store
    }

    LatePart {
        width: root.width
        shown: barKeys.isOpen
        onWanted: setSource("AppMenuBar.qml", { store: root.store, keys: barKeys })
    }
}
