pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.State
import Velmora.Theme
import Velmora.UpdateScreens

// The settings, in a window of their own.
Window {
    id: root

    required property AppStore store
    required property SettingsTabs tabs
    required property UpdateScreens updates
    // Null where the system has none.
    required property DesktopShortcuts shortcuts

    // Gives a new page the keyboard, unless the user is walking along the tabs.
    function show(page: Item) {
        if (!list.activeFocus)
            page.forceActiveFocus(Qt.OtherFocusReason);
    }

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
        id: list
        anchors.horizontalCenter: parent.horizontalCenter
        y: Metrics.gapMedium
        name: "Réglages"
        count: root.tabs.tabs.length
        current: root.tabs.index
        onChosen: index => root.tabs.index = index

        Repeater {
            model: root.tabs.tabs

            SettingsTabButton {
                current: root.tabs.index
                onChosen: root.tabs.index = index
            }
        }
    }

    Item {
        id: pages
        y: 76
        width: root.width
        height: root.height - y

        When {
            shown: root.tabs.tab === "account"

            AccountSettings {
                anchors.fill: parent
                store: root.store
                Component.onCompleted: root.show(this)
            }
        }

        When {
            shown: root.tabs.tab === "appearance"

            AppearanceSettings {
                anchors.fill: parent
                store: root.store
                Component.onCompleted: root.show(this)
            }
        }

        When {
            shown: root.tabs.tab === "shortcuts"

            ShortcutsPane {
                anchors.fill: parent
                tabs: root.tabs
                shortcuts: root.shortcuts
                Component.onCompleted: root.show(this)
            }
        }

        When {
            shown: root.tabs.tab === "updates"

            SettingsPage {
                id: page
                anchors.fill: parent
                name: "Mises à jour"
                Component.onCompleted: root.show(this)

                UpdatesSettings {
                    id: updatesSettings
                    screens: root.updates
                    onRevealRequested: box => page.reveal(updatesSettings, box)
                    onShifted: distance => page.shift(distance)
                }
            }
        }
    }
}
