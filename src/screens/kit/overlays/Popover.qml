import QtQuick
import QtQuick.Templates as T
import Velmora.Theme
import Velmora.Kit

/// A floating panel beside an area of its parent item, kept within the window. Its children are stacked at the top left. `name` is
/// its name for screen readers. Escape and a press outside close it, and that press has no other effect. The focus then
/// returns to the item that had it before. Put expensive content into a `When { shown: popover.isShown }`.
T.Popup {
    id: root

    required property string name

    default property alias content: holder.data
    /// The focus stays where it is, and the content receives the keys of its monitors only: suggestions below a text that
    /// the user goes on typing.
    property bool leavesFocus: false
    /// A `PopoverPlacement.Alignment`.
    property int alignment: PopoverPlacement.Leading
    /// The distance by which a popover with trailing alignment reaches beyond its parent item.
    property real overhang: 0
    /// True while the popover is open, opening or closing.
    readonly property bool isShown: visible
    /// True while the popover closes. Its content then receives no clicks.
    property bool isLeaving: false
    readonly property Item room: T.Overlay.overlay
    /// The area of the parent item beside which the panel stands.
    property rect spot: parent ? Qt.rect(0, 0, parent.width, parent.height) : Qt.rect(0, 0, 0, 0)
    property rect anchor: Qt.rect(0, 0, 0, 0)
    readonly property size roomSize: room ? Qt.size(room.width, room.height) : Qt.size(0, 0)
    readonly property point place: PopoverPlacement.place(Qt.rect(anchor.x, anchor.y, anchor.width + overhang, anchor.height), Qt.size(width, height), roomSize, alignment)

    readonly property Layer layer: Layer {
        item: holder.parent
        isOpen: false
        leavesFocus: root.leavesFocus
        onCloseRequested: root.close()
    }
    readonly property Item closingShield: ClosingShield {
        owner: root.layer
    }

    // Follows its area, whatever moves it: a scroll, another layout, the size of the window.
    readonly property Connections frames: Connections {
        function onAfterAnimating() {
            root.follow();
        }

        target: root.visible ? holder.Window.window : null
    }

    readonly property Item shield: LayerShield {
        parent: holder.parent
        anchors.fill: parent
        z: 1
        visible: root.isLeaving
    }

    readonly property Item body: Item {
        id: holder

        implicitHeight: childrenRect.height
        Accessible.role: Accessible.Dialog
        Accessible.name: root.name
    }

    function toggle() {
        root.visible = !root.visible
    }

    function begin() {
        isLeaving = false
        layer.isOpen = true
        follow()
    }

    function leave() {
        isLeaving = true
        layer.isOpen = false
    }

    /// Moves the panel to its area.
    function follow() {
        if (parent)
            anchor = parent.mapToItem(null, spot.x, spot.y, spot.width, spot.height)
    }

    x: spot.x + place.x
    y: spot.y + place.y
    // Not the implicit size, which Qt changes for as long as a part of the panel is outside of the window: its place
    // depends on its size.
    width: 290
    height: Math.min(holder.implicitHeight, roomSize.height - 16)
    padding: 0
    focus: !leavesFocus
    modal: !leavesFocus
    dim: modal
    closePolicy: T.Popup.CloseOnPressOutside
    transformOrigin: place.y < 0 ? T.Popup.Bottom : T.Popup.Top
    onAboutToShow: begin()
    onAboutToHide: leave()

    contentItem: body
    T.Overlay.modal: LayerShield {}

    background: GlassPanel {
        radius: Metrics.radiusPopover
        color: Theme.elevatedGlass
        shadow: "popover"
    }

    enter: Transition {
        NumberAnimation {
            properties: "opacity"
            from: 0
            to: 1
            duration: Motion.popoverDuration
        }

        NumberAnimation {
            properties: "scale"
            from: Motion.popoverScale
            to: 1
            duration: Motion.popoverDuration
            easing: Springs.even
        }
    }

    exit: Transition {
        NumberAnimation {
            properties: "opacity"
            to: 0
            duration: Motion.fadeDuration
        }
    }
}
