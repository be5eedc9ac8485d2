import QtQuick
import QtQuick.Templates as T
import Velmora.Theme
import Velmora.Kit

/// One segment of a `SegmentedPicker`. It is not a `FocusableItem`, because a template fixes its role, and this one is
/// a radio button.
T.RadioButton {
    id: root

    required property bool on
    property bool lit: enabled && (hovered || down)
    /// Shows the keyboard focus.
    property bool ringed: visualFocus

    signal chosen()

    // For screen readers, which also press disabled controls.
    function choose() {
        if (enabled)
            chosen()
    }

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    // The focus ring is drawn above the neighbouring segments.
    z: ringed ? 1 : 0
    leftPadding: 12
    rightPadding: 12
    // The picker decides which segment is chosen.
    checkable: false
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    onClicked: chosen()
    Keys.onReturnPressed: chosen()
    Keys.onEnterPressed: chosen()
    Accessible.role: Accessible.RadioButton
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: on
    Accessible.onPressAction: choose()
    Accessible.onToggleAction: choose()

    background: Rectangle {
        radius: height / 2
        color: root.on ? (Theme.dark ? "#24FFFFFF" : Theme.card)
             : root.down ? Theme.highlightFill : root.lit ? Theme.hoverFill : "transparent"

        GlassFrame {
            anchors.fill: parent
            visible: root.on
            dark: Theme.dark
            radius: parent.radius
            shadow: "segment"
            hairline: Theme.dark ? "transparent" : Theme.ink(0.08)
        }
    }

    contentItem: AppText {
        text: root.text
        role: TypeScale.Small
        weight: Font.Medium
        color: !root.enabled ? Theme.text4 : root.on ? Theme.text1 : Theme.text2
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    FocusRing {
        shown: root.ringed
        corner: root.height / 2
    }
}
