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

    color: Theme.inspector

    Accessible.role: Accessible.Pane
    Accessible.name: "Inspecteur"

    Repeater {
        model: [root.store.inspectorKey]

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
