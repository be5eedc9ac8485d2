import QtQuick
import QtQuick.Templates as T
import Velmora.Theme
import Velmora.Kit

/// A menu that the program draws. Its rows are `PopupMenuItem`, `PopupMenuSeparator` and nested `PopupMenu`s with a
/// title. The focus returns to where it was. A press outside closes it, so the click of a control that opens one must
/// close it too, or it would open it again: such a control is the menu's parent, has it `leavePressesToParent`, and calls
/// `toggle()`.
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
