pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// The pane beside the list, which shows the open issue. A new view is created for each issue.
GlassPanel {
    id: root

    required property AppStore store

    // The key of the open issue. While the pane closes, the key of the issue that was open last.
    property string key: ""

    // The user has finished typing, and the list should have the keys again.
    signal finished()

    function follow() {
        key = store.inspectorKey || key;
    }

    color: Theme.inspector

    Component.onCompleted: follow()

    Accessible.role: Accessible.Pane
    Accessible.name: "Inspecteur"

    Connections {
        target: root.store

        function onInspectorKeyChanged() {
            root.follow();
        }
    }

    Repeater {
        model: root.key === "" ? [] : [root.key]

        IssueDetailView {
            required property string modelData

            width: root.width
            height: root.height
            store: root.store
            key: modelData
            onClosed: root.store.showInspector = false
            onFinished: root.finished()
        }
    }
}
