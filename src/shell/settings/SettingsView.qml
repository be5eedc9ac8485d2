pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.State
import Velmora.Theme

// The settings, in a window of their own.
Window {
    id: root

    required property AppStore store
    required property SettingsTabs tabs

    title: "Réglages"
    width: 600
    height: 560
    minimumWidth: 600
    minimumHeight: 560
    maximumWidth: 600
    maximumHeight: 560
    color: Theme.pane

    Shortcut {
        autoRepeat: false
        sequences: ["Ctrl+W"]
        onActivated: root.close()
    }

    Layer {
        item: root.contentItem
        isOpen: true
        kind: Layer.Kind.Content
        onCloseRequested: root.close()
    }

    Shortcut {
        sequences: ["Ctrl+Q"]
        onActivated: Qt.quit()
    }

    TabList {
        anchors.horizontalCenter: parent.horizontalCenter
        y: Metrics.gapMedium
        name: "Réglages"
        count: root.tabs.tabs.length
        current: root.tabs.index
        onChosen: index => root.tabs.index = index

        Repeater {
            model: root.tabs.tabs

            SettingsTabButton {
                on: root.tabs.tab === modelData.value
                onChosen: root.tabs.tab = modelData.value
            }
        }
    }

    When {
        shown: root.tabs.tab === "shortcuts"

        ShortcutsPane {
            y: 72
            width: root.width
            height: root.height - y
            tabs: root.tabs
            focus: true
        }
    }
}
