pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Palette
import Velmora.State
import Velmora.Theme

// The palette over a window, while the store asks for one. Its panel is made when it is first asked for.
FocusScope {
    id: root

    required property AppStore store

    readonly property bool shown: logic.isOpen
    property bool wasShown: false

    visible: opacity > 0
    opacity: shown ? 1 : 0
    onShownChanged: wasShown = true

    CommandPalette {
        id: logic
        store: root.store
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.scrim
    }

    // The scrim keeps the pointer from what lies below.
    MouseArea {
        anchors.fill: parent
        enabled: root.shown
        hoverEnabled: true
        onWheel: event => event.accepted = true
        onClicked: logic.close()
    }

    LatePart {
        x: (root.width - width) / 2
        y: Metrics.paletteTop
        focus: true
        shown: root.wasShown
        onWanted: setSource("PalettePanel.qml", {
            commandPalette: logic,
            isDemo: Qt.binding(() => root.store.isDemo),
            isSettled: Qt.binding(() => root.opacity === 1)
        })
        scale: root.shown ? 1 : Motion.paletteScale

        Behavior on scale {
            NumberAnimation {
                duration: Motion.paletteDuration
                easing: Springs.even
            }
        }
    }

    Behavior on opacity {
        NumberAnimation {
            duration: Motion.paletteDuration
            easing: Springs.firm
        }
    }
}
