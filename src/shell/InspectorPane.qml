pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// The pane beside the list: the issue that is open. Another issue begins afresh.
GlassPanel {
    id: root

    required property AppStore store

    // The issue that is open, or was until the pane began to go.
    property string key: ""

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

        IssueSummary {
            required property string modelData

            width: root.width
            height: root.height
            store: root.store
            key: modelData
            onClosed: root.store.showInspector = false
        }
    }
}
