pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Theme

// The container of the filter bar, which opens and closes above the list.
Item {
    id: root

    required property Filters filters

    // How far the container is open, from 0 to 1.
    property real presence: filters.isEmpty ? 0 : 1
    property real barHeight: 0

    height: presence * barHeight
    visible: presence > 0
    opacity: Math.min(1, presence)
    clip: presence < 1

    When {
        shown: root.visible

        FilterBar {
            width: root.width
            filters: root.filters
            onImplicitHeightChanged: root.barHeight = implicitHeight
            Component.onCompleted: root.barHeight = implicitHeight
        }
    }

    Behavior on presence {
        NumberAnimation {
            duration: Motion.stateDuration
            easing: Springs.even
        }
    }
}
