pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.State

// Lets issues be dragged from the rows and cards inside this item. It is separate from them, because a reload may
// destroy the dragged row or card during the drag.
Item {
    id: root

    required property AppStore store

    property DragHandler handler: null

    // Starts the drag of an issue as soon as its picture is drawn.
    function begin(key: string, by: DragHandler) {
        handler = by;
        picture.shown = drag.take(key);
    }

    function start(image: url) {
        Drag.imageSource = image;
        Drag.active = handler !== null && handler.active;
        picture.shown = false;
    }

    Drag.dragType: Drag.Automatic
    Drag.supportedActions: Qt.CopyAction
    Drag.proposedAction: Qt.CopyAction
    Drag.mimeData: drag.content
    Drag.hotSpot: Qt.point(12, 12)
    Drag.onDragFinished: Drag.active = false

    IssueDrag {
        id: drag
        store: root.store
    }

    When {
        id: picture
        shown: false

        DragPreview {
            visible: false
            issue: drag.issue
            Component.onCompleted: grabToImage(result => root.start(result.url))
        }
    }
}
