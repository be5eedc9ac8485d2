import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.State

// A command in a menu of the menu bar.
PopupMenuItem {
    id: root

    required property commandEntry modelData
    required property MenuBarKeys keys

    text: modelData.title
    shortcut: modelData.shortcut
    enabled: modelData.isEnabled
    onTriggered: root.keys.choose(modelData.command)
}
