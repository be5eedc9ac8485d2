import QtQuick
import Velmora.Issues
import Velmora.Shell
import Velmora.State
import Velmora.Theme

// The signed-in screen: the sidebar, and the issues beside it.
FocusScope {
    id: root

    required property AppStore store

    KeyMonitor {
        window: root.Window.window
        store: root.store
    }

    SidebarView {
        id: sidebar
        x: Metrics.paneMargin
        y: Metrics.paneMargin
        width: Metrics.sidebarWidth - Metrics.paneMargin
        height: parent.height - 2 * Metrics.paneMargin
        store: root.store
    }

    IssuesView {
        anchors.left: sidebar.right
        anchors.leftMargin: 4
        anchors.right: parent.right
        anchors.rightMargin: 4
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        focus: true
        store: root.store
    }
}
