import QtQuick
import Velmora.Theme
import Velmora.Kit

/// A sheet with fields. Its head and its foot stay in place, and the fields between them scroll if the window is too low.
/// The fields are stacked at the top left. Give them `width: sheet.width`. The foot is separated by a line. Return with
/// Control emits `submitted` while `canSubmit` is true.
Sheet {
    id: root

    required property Item head
    required property Item foot

    default property alias fields: holder.data
    property bool canSubmit: true
    /// The height that the fields can have without being scrolled.
    readonly property real fieldsRoom: Math.max(0, (parent ? parent.height - 32 : 0) - top.height - bottom.height)
    readonly property Item focusedItem: page.Window.activeFocusItem

    signal submitted()

    /// Scrolls as little as possible until the item with the keyboard focus is visible.
    function reveal() {
        if (!focusedItem || !holder.activeFocus)
            return
        const place = focusedItem.mapToItem(holder, 0, 0)
        view.contentY = Math.max(0, Math.min(place.y, Math.max(view.contentY, place.y + focusedItem.height - view.height)))
    }

    onFocusedItemChanged: reveal()

    FocusScope {
        id: page

        width: root.width
        implicitHeight: top.height + view.height + bottom.height
        focus: true

        KeyMonitorModifier {
            handler: DefaultAction {
                enabled: root.canSubmit
                onTriggered: root.submitted()
            }
        }

        FocusScope {
            id: top

            width: parent.width
            height: root.head.implicitHeight
            data: [root.head]
        }

        Flickable {
            id: view

            y: top.height
            width: parent.width
            height: Math.min(contentHeight, root.fieldsRoom)
            contentHeight: holder.implicitHeight
            boundsBehavior: Flickable.StopAtBounds
            clip: contentHeight > height

            FocusScope {
                id: holder

                width: view.width
                implicitHeight: childrenRect.y + childrenRect.height
                focus: true
            }
        }

        Scrolling {
            view: view
            ground: Theme.elevated
        }

        FocusScope {
            id: bottom

            y: view.y + view.height
            width: parent.width
            height: root.foot.implicitHeight
            data: [root.foot, line]
        }

        Hairline {
            id: line

            width: parent.width
            color: Theme.divider
        }
    }
}
