pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Create
import Velmora.Kit
import Velmora.Palette
import Velmora.Shell
import Velmora.State
import Velmora.Theme
import Velmora.UpdateScreens

// The content of the main window: one screen for each phase, and the layers above every screen.
Window {
    id: root

    required property AppStore store
    required property WindowMemory memory
    required property Farewell farewell
    required property UpdateScreens updates

    // The horizontal centre of the issue list, above which toasts are centred.
    property real detailCentre: width / 2

    // The first screen after the launch has taken the focus, so a sheet that opens from now on keeps it.
    property bool hasScreen: false

    title: "Velmora"
    width: 1320
    height: 840
    minimumWidth: 940
    minimumHeight: 580
    visible: true
    color: Theme.content

    When {
        shown: root.store.phase === AppStore.Phase.Launching

        LaunchView {
            anchors.fill: parent
        }
    }

    LatePart {
        anchors.fill: parent
        focus: shown
        shown: root.store.phase === AppStore.Phase.SignedOut
        onWanted: setSource("OnboardingView.qml", { store: root.store, focus: true })
        onLoaded: root.hasScreen = true
    }

    When {
        shown: root.store.phase === AppStore.Phase.Ready

        MainView {
            anchors.fill: parent
            focus: true
            store: root.store
            memory: root.memory
            updates: root.updates
            onDetailCentreChanged: root.detailCentre = detailCentre
            // The sign-in screen disappears while one of its fields has the focus.
            Component.onCompleted: {
                root.detailCentre = detailCentre;
                forceActiveFocus();
                root.hasScreen = true;
            }
            Component.onDestruction: root.detailCentre = Qt.binding(() => root.width / 2)
        }
    }

    PaletteLayer {
        id: layer

        anchors.fill: parent
        store: root.store
        isAhead: AfterStart.hasPassed && root.store.phase === AppStore.Phase.Ready
    }

    CreateLayer {
        store: root.store
    }

    ToastStack {
        toasts: root.store.toasts
        // Above the selection bar while issues are checked, otherwise near the window's edge.
        bottomGap: root.store.isSelecting ? Metrics.toastBottomAboveBar : Metrics.toastBottom
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.horizontalCenterOffset: root.detailCentre - root.width / 2
        anchors.bottom: parent.bottom
        onDismissed: id => root.store.dismissToast(id)
    }

    MenuBarLayer {
        anchors.fill: parent
        store: root.store
    }

    When {
        shown: root.hasScreen && root.updates.updater.hasWhatsNew

        WhatsNewSheet {
            screens: root.updates
            onDismissed: root.updates.updater.dismissWhatsNew()
        }
    }

    When {
        shown: root.updates.hasAlert

        UpdateAlertSheet {
            screens: root.updates
        }
    }

    When {
        shown: root.hasScreen && About.isShown

        AboutSheet {
            updates: root.updates
        }
    }

    When {
        shown: root.farewell.isShown

        FarewellSheet {
            farewell: root.farewell
        }
    }

    Shortcut {
        sequences: ["Ctrl+W"]
        onActivated: root.close()
    }

    Binding {
        target: Theme
        property: "dark"
        value: root.store.isDark
    }

    Binding {
        target: Theme
        property: "accentChoice"
        value: root.store.accentChoice
    }

    Binding {
        target: Motion
        property: "reduced"
        value: root.store.prefersReducedMotion
    }

    Binding {
        target: Motion
        property: "scales"
        value: layer.GraphicsInfo.api !== GraphicsInfo.Software
    }
}
