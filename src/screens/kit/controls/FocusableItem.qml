import QtQuick
import QtQuick.Templates as T
import Velmora.Kit
import Velmora.Theme

/// The base of everything that can be pressed: pointer, Space, Return, Enter and a screen reader's press all emit
/// `clicked`. Its focus shows only after a key press. Give `text`, or `accessibleName` where no text is seen, and fill
/// `background` and `contentItem`. `corner` is the radius of its shape; `hint` is shown under the pointer.
T.AbstractButton {
    id: root

    property string accessibleName: text
    property string hint
    property real corner: Metrics.radiusRow
    /// Under the pointer or pressed.
    property bool lit: enabled && (hovered || down)
    /// Shows the keyboard's focus.
    property bool ringed: visualFocus
    /// A press puts the hint away until the pointer comes again: it would lie over what the press has opened.
    property bool hushed: false

    /// What a press does, for those that come by no pointer.
    function activate() {
        if (checkable)
            toggle()
        clicked()
    }

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(implicitBackgroundHeight, implicitContentHeight + topPadding + bottomPadding)
    hoverEnabled: true
    onDownChanged: hushed = hushed || down
    onHoveredChanged: hushed = false
    focusPolicy: Qt.TabFocus
    Keys.onReturnPressed: activate()
    Keys.onEnterPressed: activate()
    Accessible.role: checkable ? Accessible.CheckBox : Accessible.Button
    Accessible.name: accessibleName
    Accessible.checkable: checkable
    Accessible.checked: checked
    Accessible.onPressAction: activate()
    Accessible.onToggleAction: activate()

    FocusRing {
        shown: root.ringed
        corner: root.corner
    }

    HintTip {
        shown: root.hovered && !root.hushed
        text: root.hint
    }
}
