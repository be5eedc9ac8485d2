pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Velmora.Kit
import Velmora.Shell
import Velmora.Theme

// A reference of all keyboard shortcuts.
Flickable {
    id: root

    required property SettingsTabs tabs

    contentHeight: groups.height + 2 * groups.y
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: true
    Accessible.role: Accessible.List
    Accessible.name: "Raccourcis"
    Keys.onUpPressed: flick(0, 900)
    Keys.onDownPressed: flick(0, -900)

    T.ScrollBar.vertical: OverlayScrollBar {}

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
