import QtQuick
import QtQuick.Templates as T
import Velmora.Theme
import Velmora.Kit

/// A menu that the program draws. Its rows are `PopupMenuItem`, `PopupMenuSeparator` and nested `PopupMenu`s with a
/// title.
T.Menu {
    id: menu

    property real widest: 0

    implicitWidth: Math.max(140, widest + leftPadding + rightPadding)
    implicitHeight: contentHeight + topPadding + bottomPadding
    padding: 5
    margins: 8
    overlap: 4
    cascade: true
    onAboutToShow: widest = MenuMeasure.widest(menu)

    delegate: PopupMenuItem {}

    contentItem: ListView {
        implicitHeight: contentHeight
        model: menu.contentModel
        interactive: contentHeight > height
        clip: interactive
        currentIndex: menu.currentIndex
        Accessible.role: Accessible.PopupMenu
        Accessible.name: menu.title
    }

    background: GlassPanel {
        radius: Metrics.radiusBubble
        color: Theme.elevatedGlass
        shadow: "popover"
    }
}
