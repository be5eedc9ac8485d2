import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A glass chip with an icon and a title in one line, that opens what is declared in it in a popover 290 wide.
/// `prominent` takes the accent. What is costly goes into a `When { shown: chip.isPresented }`; `dismiss()` closes it.
FocusableItem {
    id: chip

    default property alias content: popover.content
    required property string title
    property bool prominent: false
    /// The icon before the title.
    property Item leading: null
    property alias popoverWidth: popover.width
    property alias alignment: popover.alignment
    readonly property bool isPresented: popover.isShown
    readonly property color ink: !enabled ? Theme.text4 : prominent ? Theme.textOnAccent : Theme.text1

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Metrics.propertyChipHeight
    leftPadding: leading ? 9 : 11
    rightPadding: 11
    corner: height / 2
    accessibleName: title
    // The template keeps the role of a button.
    Accessible.description: isPresented ? "Liste ouverte" : "Ouvre une liste"
    scale: down ? Motion.pressScale : 1
    onClicked: popover.toggle()

    function dismiss() {
        popover.close()
    }

    Behavior on scale {
        NumberAnimation {
            duration: Motion.pressDuration
        }
    }

    contentItem: ChipLabel {
        title: chip.title
        leading: chip.leading
        ink: chip.ink
    }

    background: ButtonSurface {
        corner: chip.corner
        floating: !chip.prominent
        prominent: chip.prominent
        hovered: chip.lit || chip.isPresented
        pressed: chip.down
    }

    Popover {
        id: popover

        name: chip.title
    }
}
