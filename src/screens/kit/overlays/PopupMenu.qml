import QtQuick
import QtQuick.Templates as T
import Velmora.Theme
import Velmora.Kit

/// A menu that the program draws itself. Its rows are `PopupMenuItem`, `PopupMenuSeparator` and nested `PopupMenu`s
/// with a title. Escape and a press outside close it, and that press has no other effect. The focus then returns to the
/// item that had it before.
///
/// A menu is at most `Metrics.menuMaxWidth` wide and never higher than its window. If it is too small for its rows, a
/// sign at its edge says that there are more and scrolls to them.
T.Menu {
    id: root

    // The menu or the menu bar that has opened this menu must stay reachable.
    readonly property bool isSubmenu: parent instanceof T.MenuItem || parent instanceof T.MenuBarItem
    readonly property Item overlay: T.Overlay.overlay
    readonly property real availableMenuWidth: overlay ? overlay.width - 2 * margins : Metrics.menuMaxWidth
    readonly property real availableMenuHeight: overlay ? overlay.height - 2 * margins : Infinity
    readonly property Layer layer: Layer {
        item: root.contentItem.parent
        isOpen: false
        onCloseRequested: root.close()
    }
    readonly property Item closingShield: ClosingShield {
        owner: root.layer
    }
    // Declared as properties, because the children of a menu become rows.
    readonly property MenuRows rows: MenuRows {
        id: scroller

        parent: root.contentItem.parent
        x: root.contentItem.x
        y: root.contentItem.y
        width: root.contentItem.width
        height: root.contentItem.height
        z: 1
        menu: root
        list: root.contentItem
        signHeight: 20
    }
    readonly property list<Item> signs: [
        MenuScrollSign {
            parent: root.contentItem.parent
            rows: scroller
            isAbove: true
        },
        MenuScrollSign {
            parent: root.contentItem.parent
            rows: scroller
            isAbove: false
        }
    ]

    function begin() {
        scroller.begin()
        layer.isOpen = true
    }

    implicitWidth: Math.min(Math.max(140, scroller.implicitWidth + leftPadding + rightPadding), Metrics.menuMaxWidth, availableMenuWidth)
    implicitHeight: Math.min(scroller.implicitHeight + topPadding + bottomPadding, availableMenuHeight)
    padding: 5
    margins: 8
    overlap: 4
    cascade: true
    modal: !isSubmenu
    dim: modal
    closePolicy: T.Popup.CloseOnPressOutside
    onAboutToShow: begin()
    onAboutToHide: layer.isOpen = false
    T.Overlay.modal: LayerShield {}

    // The menu's own item is the menu, so that screen readers find only one.
    Component.onCompleted: root.contentItem.parent.Accessible.name = Qt.binding(() => root.title)

    delegate: PopupMenuItem {}

    contentItem: ListView {
        // All rows stay in the layout, so that their places are exact.
        displayMarginBeginning: 1000000
        displayMarginEnd: 1000000
        model: root.contentModel
        // The list would give its current row the focus.
        currentIndex: -1
        focus: true
        interactive: false
        clip: true
    }

    background: GlassPanel {
        radius: Metrics.radiusBubble
        color: Theme.elevatedGlass
        shadow: "popover"
    }
}
