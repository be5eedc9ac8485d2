pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Create
import Velmora.Kit
import Velmora.State

// The sheet for a new issue above the content of a window, shown while the store requests it. Each request creates a new
// sheet.
Item {
    id: root

    required property AppStore store

    // The sheet is still fading out after the store has withdrawn its request.
    property bool isLeaving: false

    // A request that comes while the previous sheet fades out replaces that sheet.
    function follow() {
        if (store.isCreating)
            holder.shown = false;
        isLeaving = !store.isCreating;
        holder.shown = true;
    }

    Connections {
        target: root.store

        function onIsCreatingChanged() {
            root.follow();
        }

        function onSessionChanged() {
            root.store.isCreating = false;
        }
    }

    When {
        id: holder

        shown: root.store.isCreating

        CreateSheet {
            store: root.store
            isLeaving: root.isLeaving
            onClosed: holder.shown = false
        }
    }
}
