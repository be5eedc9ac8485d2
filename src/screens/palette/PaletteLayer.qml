pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Palette
import Velmora.State
import Velmora.Theme

// The palette above the content of a window, shown while the store requests it. The panel is created on the first
// request, or ahead of it, and kept.
FocusScope {
    id: root

    required property AppStore store
    // The issue whose window this is; empty in the main window.
    property alias issueKey: logic.issueKey
    // Create the panel before the first request.
    property alias isAhead: panel.isAhead

    readonly property bool shown: logic.isOpen
    property bool wasShown: false

    // In the window of an issue: opens the palette with a command, see `CommandPalette`.
    function request(command: int) {
        logic.request(command);
    }

    // At once, because it receives the very next key.
    visible: shown || opacity > 0
    opacity: shown ? 1 : 0
    onShownChanged: wasShown = true

    CommandPalette {
        id: logic
        store: root.store
    }

    Connections {
        target: logic

        function onModeChanged() {
            if (root.shown)
                root.forceActiveFocus(Qt.PopupFocusReason);
        }
    }

    Layer {
        item: root
        isOpen: root.shown
        closesOnEscape: false
        replacesOthers: true
        onCloseRequested: logic.close()
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.scrim
    }

    LayerShield {
        anchors.fill: parent
        visible: root.shown
        onClicked: logic.close()
    }

    LayerShield {
        x: panel.x
        y: panel.y
        width: panel.width
        height: panel.height
        z: 1
        // The panel takes no press while it fades out.
        visible: !root.shown
    }

    LatePart {
        id: panel
        x: (root.width - width) / 2
        y: Metrics.paletteTop
        focus: true
        shown: root.wasShown
        isKept: true
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
