import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A glass chip with an icon and a title on one line. It opens its declared content in a popover 290 wide. `prominent`
/// uses the accent. Put expensive content into a `When { shown: chip.isPresented }`. `dismiss()` closes the popover.
FocusableItem {
    id: root

    required property string title

    default property alias content: popover.content
    property bool prominent: false
    /// The icon before the title.
    property Item leading: null
    property alias popoverWidth: popover.width
    property alias alignment: popover.alignment
    readonly property bool isPresented: popover.isShown
    readonly property color ink: !enabled ? Theme.text4 : prominent ? Theme.textOnAccent : Theme.text1

    function dismiss() {
        popover.close()
    }

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Metrics.propertyChipHeight
    leftPadding: leading ? 9 : 11
    rightPadding: 11
    corner: height / 2
    accessibleName: title
    // The description states that the chip opens a list, because the template fixes the role to a button.
    Accessible.description: isPresented ? "Liste ouverte" : "Ouvre une liste"
    scale: down ? Motion.pressScale : 1
    onClicked: popover.toggle()

    contentItem: ChipLabel {
        title: root.title
        leading: root.leading
        ink: root.ink
    }

    background: ButtonSurface {
        corner: root.corner
        floating: !root.prominent
        prominent: root.prominent
        hovered: root.lit || root.isPresented
        pressed: root.down
    }

    Popover {
        id: popover

        name: root.title
    }

    Behavior on scale {
        NumberAnimation {
            duration: Motion.pressDuration
        }
    }
}
