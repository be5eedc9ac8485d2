pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.Theme

// A reference of all keyboard shortcuts, below those of the whole desktop where it has such.
FocusScope {
    id: root

    required property SettingsTabs tabs
    // Null where the system has none.
    required property DesktopShortcuts shortcuts

    Flickable {
        id: page
        anchors.fill: parent
        focus: true
        contentHeight: groups.height + 2 * groups.y
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: true
        Accessible.role: Accessible.List
        Accessible.name: "Raccourcis"
        Keys.onUpPressed: scrolling.scrollBy(-1)
        Keys.onDownPressed: scrolling.scrollBy(1)

        Column {
            id: groups
            x: 24
            y: Metrics.gapMedium
            width: root.width - 2 * x
            spacing: Metrics.gapLarge

            When {
                shown: root.shortcuts?.isPresent ?? false
                // The button may have the focus when the portal ends.
                onShownChanged: page.focus = true

                DesktopShortcutsCard {
                    shortcuts: root.shortcuts
                    onFocused: page.contentY = 0
                }
            }

            Repeater {
                model: root.tabs.shortcuts

                ShortcutGroupCard {
                    width: groups.width
                }
            }
        }
    }

    Scrolling {
        id: scrolling
        view: page
        ground: Theme.pane
    }
}
