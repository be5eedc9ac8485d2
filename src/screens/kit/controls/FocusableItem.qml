import QtQuick
import QtQuick.Templates as T
import Velmora.Kit
import Velmora.Theme

/// The base of all controls that can be pressed: the pointer, Space, Return, Enter and the press action of a screen
/// reader all emit `clicked`. The focus is visible only after a key press. Set `text`, or `accessibleName` if no text
/// is visible, and provide `background` and `contentItem`. `corner` is the radius of the shape. `hint` is shown under
/// the pointer. Controls that are on or off are a `CheckableItem`.
T.AbstractButton {
    id: root

    property string accessibleName: text
    property string hint
    property real corner: Metrics.radiusRow
    /// Under the pointer, or pressed.
    property bool lit: enabled && (hovered || down)
    /// Shows the keyboard focus.
    property bool ringed: visualFocus
    /// A press hides the hint until the pointer enters again, because the hint would cover what the press has opened.
    property bool hushed: false

    /// Performs the action of a press, for callers other than the pointer. Screen readers also press disabled controls.
    function activate() {
        if (!enabled)
            return
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
    Accessible.role: Accessible.Button
    Accessible.name: accessibleName
    Accessible.checkable: checkable
    Accessible.checked: checked
    Accessible.onPressAction: activate()

    FocusRing {
        shown: root.ringed
        corner: root.corner
    }

    HintTip {
        shown: root.hovered && !root.hushed
        text: root.hint
    }
}
