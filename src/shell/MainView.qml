pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Shell
import Velmora.State
import Velmora.Theme
import Velmora.UpdateScreens

// The screen of a signed-in user: the sidebar, the issues and, at the trailing edge, the inspector.
FocusScope {
    id: root

    required property AppStore store
    required property WindowMemory memory
    required property UpdateScreens updates

    // The sidebar is shown above the issues, because the user requested it and the window is too narrow to show both.
    property bool isSidebarFloating: false

    readonly property mainPlan plan: MainPlans.plan(width, memory.sidebarWidth, memory.inspectorWidth,
        store.showInspector)
    // The same plan with the inspector. It gives the inspector a fixed position while it slides in and out.
    readonly property mainPlan openPlan: MainPlans.plan(width, memory.sidebarWidth, memory.inspectorWidth, true)
    // How far the inspector has slid in, from 0 (hidden) to 1 (shown). The other panes take their final positions at
    // once, so that each frame of the animation moves one item and needs no layout.
    property real inspectorPresence: store.showInspector ? 1 : 0
    // The horizontal extent of the issue list.
    readonly property int detailLeft: plan.hasSidebar ? plan.sidebar : 0
    readonly property int detailRight: plan.coversDetail ? width : width - plan.inspector
    readonly property real detailCentre: plan.coversDetail ? width / 2 : (detailLeft + detailRight) / 2
    readonly property bool isInspecting: store.showInspector

    // At the start of the animation, so that a closing inspector receives no more keys.
    onIsInspectingChanged: if (!isInspecting && inspector.activeFocus) issues.focusIssues()

    onPlanChanged: isSidebarFloating = isSidebarFloating && !plan.hasSidebar

    Layer {
        item: root
        isOpen: true
        kind: Layer.Kind.Content
        closesOnEscape: false
    }

    KeyMonitorModifier {
        handler: KeyMonitor {
            window: root.Window.window
            store: root.store
            // A key press that moves to another issue also moves the focus away from any button.
            onWalked: issues.focusIssues()
        }
    }

    Layer {
        item: sidebar
        isOpen: root.isSidebarFloating
        onCloseRequested: root.isSidebarFloating = false
    }

    SidebarView {
        id: sidebar
        x: Metrics.paneMargin
        y: Metrics.paneMargin
        z: 2
        width: root.plan.sidebar - Metrics.paneMargin
        height: parent.height - 2 * Metrics.paneMargin
        visible: root.plan.hasSidebar || root.isSidebarFloating
        isFloating: root.isSidebarFloating
        updates: root.updates
        store: root.store
        onDismissed: root.isSidebarFloating = false
        // A hidden sidebar with the focus would still receive the arrow keys.
        onVisibleChanged: if (!visible && activeFocus) issues.forceActiveFocus(Qt.OtherFocusReason)
    }

    SplitHandle {
        x: root.plan.sidebar - width / 2
        height: parent.height
        z: 1
        visible: root.plan.hasSidebar
        name: "Largeur de la barre latérale"
        value: root.plan.sidebar
        minimum: Metrics.sidebarMinWidth
        maximum: Metrics.sidebarMaxWidth
        standard: Metrics.sidebarWidth
        onMoved: width => root.memory.sidebarWidth = width
    }

    // Disabled while the palette has the keyboard focus.
    Shortcut {
        sequences: ["Ctrl+F"]
        enabled: root.activeFocus && issues.visible
        onActivated: issues.focusSearch()
    }

    IssuesView {
        id: issues
        x: root.detailLeft + 4
        width: root.detailRight - x - 4
        height: parent.height
        visible: !root.plan.coversDetail || root.inspectorPresence < 1
        focus: true
        store: root.store
        hasSidebarButton: !root.plan.hasSidebar
        onSidebarWanted: root.isSidebarFloating = true
    }

    // A press beside the floating sidebar only closes it.
    LayerShield {
        anchors.fill: parent
        z: 1
        visible: root.isSidebarFloating
        onClicked: root.isSidebarFloating = false
    }

    SplitHandle {
        x: root.detailRight - width / 2
        height: parent.height
        z: 1
        visible: root.plan.inspector > 0 && !root.plan.coversDetail
        trailing: true
        name: "Largeur de l'inspecteur"
        value: root.plan.inspector
        minimum: Metrics.inspectorMinWidth
        maximum: Metrics.inspectorMaxWidth
        standard: Metrics.inspectorWidth
        onMoved: width => root.memory.inspectorWidth = width
    }

    LatePart {
        id: inspector
        readonly property int restingX: root.openPlan.coversDetail ? Metrics.paneMargin
                                                                   : root.width - root.openPlan.inspector
        x: restingX + (1 - root.inspectorPresence) * (root.width - restingX)
        y: Metrics.paneMargin
        width: root.width - restingX - Metrics.paneMargin
        height: root.height - 2 * Metrics.paneMargin
        shown: root.store.showInspector || root.inspectorPresence > 0
        isKept: true
        isAhead: AfterStart.hasPassed
        onWanted: setSource("InspectorPane.qml", { store: root.store })

        Connections {
            target: inspector.item

            function onFinished() {
                issues.focusIssues();
            }
        }
    }

    Behavior on inspectorPresence {
        NumberAnimation {
            duration: Motion.stateDuration
            easing: Springs.even
        }
    }
}
