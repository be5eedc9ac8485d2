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
    readonly property alias commands: menuCommands

    MenuBarKeys {
        id: barKeys
        window: root.Window.window
        commands: menuCommands
    }

    AppCommands {
        id: menuCommands
        store: root.store
        issueKey: root.issueKey
    }

    Shortcut {
        autoRepeat: false
        sequences: ["Ctrl+Q"]
        onActivated: Qt.quit()
    }

    // The conventional key for settings on desktops that define none of their own.
    Shortcut {
        autoRepeat: false
        sequences: ["Ctrl+,"]
        onActivated: root.store.run(Commands.Command.OpenSettings)
    }

    Layer {
        id: barLayer
        item: bar
        isOpen: barKeys.isOpen
        onCloseRequested: barKeys.close()
    }

    LayerShield {
        anchors.fill: parent
        visible: barKeys.isOpen
    }

    LatePart {
        id: bar
        width: root.width
        shown: barLayer.isOpen
        onWanted: setSource("AppMenuBar.qml", { store: root.store, keys: barKeys, commands: menuCommands })
    }
}
