import QtQuick
import QtQuick.Templates as T
import Velmora.Theme
import Velmora.Kit

/// A menu that the program draws itself. Its rows are `PopupMenuItem`, `PopupMenuSeparator` and nested `PopupMenu`s
/// with a title. Escape and a press outside close it, and that press has no other effect. The focus then returns to the
/// item that had it before.
T.Menu {
    id: root

    property real widest: 0
    // The menu or the menu bar that has opened this menu must stay reachable.
    readonly property bool isSubmenu: parent instanceof T.MenuItem || parent instanceof T.MenuBarItem
    readonly property Layer layer: Layer {
        item: root.contentItem.parent
        isOpen: false
        onCloseRequested: root.close()
    }

    function begin() {
        MenuMeasure.alignMarks(root)
        widest = MenuMeasure.widest(root)
        layer.isOpen = true
    }

    implicitWidth: Math.max(140, widest + leftPadding + rightPadding)
    implicitHeight: contentHeight + topPadding + bottomPadding
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

    delegate: PopupMenuItem {}

    contentItem: ListView {
        implicitHeight: contentHeight
        model: root.contentModel
        interactive: contentHeight > height
        clip: interactive
        currentIndex: root.currentIndex
        Accessible.role: Accessible.PopupMenu
        Accessible.name: root.title
    }

    background: GlassPanel {
        radius: Metrics.radiusBubble
        color: Theme.elevatedGlass
        shadow: "popover"
    }
}
