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

    // The pressed row or card. Null once it is destroyed.
    property PressArea source: null

    // Starts the drag of an issue as soon as its picture is drawn.
    function begin(key: string, by: PressArea) {
        source = by;
        picture.shown = drag.take(key, by);
    }

    function start(image: var, hotSpot: point) {
        picture.shown = false;
        drag.start(source, image, hotSpot);
    }

    IssueDrag {
        id: drag
        store: root.store
    }

    When {
        id: picture
        shown: false

        DragPreview {
            id: preview
            visible: false
            issue: drag.issue
            count: drag.count
            isComposed: drag.isComposed
            Component.onCompleted: grabToImage(result => root.start(result.image, preview.hotSpot),
                Qt.size(Math.ceil(width * drag.ratio), Math.ceil(height * drag.ratio)))
        }
    }
}
