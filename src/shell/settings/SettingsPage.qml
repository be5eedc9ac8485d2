import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.Theme

// A page of the settings: cards one below the other, which scroll so that the focused control is visible. `name` is its
// name for screen readers.
FocusScope {
    id: root

    required property string name
    default property alias cards: stack.data

    // Scrolls so that a part of an item on the page is visible.
    function reveal(item: Item, box: rect) {
        page.reveal(item.mapToItem(page.contentItem, box));
    }

    // Scrolls by a distance in logical pixels, without an animation.
    function shift(distance: real) {
        page.contentY += distance;
    }

    Keys.onUpPressed: scrolling.scrollBy(-1)
    Keys.onDownPressed: scrolling.scrollBy(1)

    CardScroller {
        id: page
        anchors.fill: parent
        margin: Metrics.gap
        card: stack
        scope: root
        clip: true
        focus: true
        Accessible.role: Accessible.Pane
        Accessible.name: root.name

        Column {
            id: stack
            x: Metrics.pageMargin
            y: page.margin
            width: page.width - 2 * x
            bottomPadding: Metrics.pageMargin - page.margin
            spacing: 16
        }
    }

    Scrolling {
        id: scrolling
        view: page
        ground: Theme.pane
    }
}
