import QtQuick
import QtQuick.Templates as T
import Velmora.Theme
import Velmora.Kit

/// A panel above the window that the user must complete first: the rest is dimmed and cannot be reached. Its children
/// are stacked at the top left. Give them `width: sheet.width`. `name` is its name for screen readers. Escape closes it.
/// The focus then returns to the item that had it before. Put expensive content into a `When { shown: sheet.visible }`.
T.Popup {
    id: root

    required property string name

    default property alias content: holder.data
    /// The fraction of the free height above the sheet. It is less than a half, because the centre is perceived to be
    /// higher.
    property real lift: 0.4
    readonly property real freeHeight: parent ? parent.height - height : 0
    readonly property Layer layer: Layer {
        item: holder.parent
        kind: Layer.Kind.Required
        isOpen: false
        onCloseRequested: root.close()
    }
    readonly property Item closingShield: ClosingShield {
        owner: root.layer
    }

    readonly property Item body: Item {
        id: holder

        implicitHeight: childrenRect.height
        clip: height < implicitHeight
        Accessible.role: Accessible.Dialog
        Accessible.name: root.name
    }

    parent: T.Overlay.overlay
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: Math.round(freeHeight * lift)
    implicitWidth: Math.min(520, parent ? parent.width - 32 : 520)
    implicitHeight: Math.min(holder.implicitHeight, parent ? parent.height - 32 : holder.implicitHeight)
    padding: 0
    modal: true
    focus: true
    dim: true
    closePolicy: T.Popup.NoAutoClose
    contentItem: body
    onAboutToShow: layer.isOpen = true
    onAboutToHide: layer.isOpen = false

    background: GlassPanel {
        radius: Metrics.radiusSheet
        color: Theme.elevated
        shadow: "sheet"
    }

    T.Overlay.modal: Scrim {}

    enter: Transition {
        NumberAnimation {
            properties: "opacity"
            from: 0
            to: 1
            duration: Motion.fadeDuration
        }

        NumberAnimation {
            properties: "scale"
            from: Motion.paletteScale
            to: 1
            duration: Motion.paletteDuration
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
