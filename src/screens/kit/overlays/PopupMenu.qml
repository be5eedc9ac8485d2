import QtQuick
import QtQuick.Templates as T
import Velmora.Theme
import Velmora.Kit

/// A menu that the program draws itself. Its rows are `PopupMenuItem`, `PopupMenuSeparator` and nested `PopupMenu`s
/// with a title. When it closes, the focus returns to the item that had it before. A press outside closes the menu. A
/// control that opens the menu on a click must also close it on a click, because otherwise the click would open it
/// again: make the control the menu's parent, set `leavePressesToParent`, and call `toggle()`.
T.Menu {
    id: root

    property real widest: 0
    property Item returnTo: null
    property bool leavePressesToParent: false

    function toggle() {
        root.visible = !root.visible
    }

    function begin() {
        MenuMeasure.alignMarks(root)
        widest = MenuMeasure.widest(root)
        returnTo = FocusReturn.holder(parent)
    }

    implicitWidth: Math.max(140, widest + leftPadding + rightPadding)
    implicitHeight: contentHeight + topPadding + bottomPadding
    padding: 5
    margins: 8
    overlap: 4
    cascade: true
    closePolicy: T.Popup.CloseOnEscape | (leavePressesToParent ? T.Popup.CloseOnPressOutsideParent : T.Popup.CloseOnPressOutside)
    onAboutToShow: begin()
    onAboutToHide: FocusReturn.giveBack(returnTo)

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
