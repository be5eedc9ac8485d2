pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// The pane beside the list, which shows the open issue.
GlassPanel {
    id: root

    required property AppStore store

    // The key of the open issue. While the pane closes, the key of the issue that was open last; then empty, so that
    // nothing of that issue stays.
    property string key: ""

    // The user has finished typing, and the list should have the keys again.
    signal finished()

    function follow() {
        key = store.inspectorKey || key;
    }

    color: Theme.inspector

    Component.onCompleted: follow()
    onVisibleChanged: {
        if (visible)
            follow();
        else
            key = "";
    }

    Accessible.role: Accessible.Pane
    Accessible.name: "Inspecteur"

    Connections {
        target: root.store

        function onInspectorKeyChanged() {
            root.follow();
        }
    }

    IssueDetailView {
        anchors.fill: parent
        visible: root.key !== ""
        store: root.store
        key: root.key
        onClosed: root.store.showInspector = false
        onFinished: root.finished()
    }
}
