pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.Theme

// A reference of all keyboard shortcuts.
FocusScope {
    id: root

    required property SettingsTabs tabs

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
