import QtQuick
import QtQuick.Templates as T
import Velmora.Kit

/// One choice of a `ChoiceRow`: a radio button. It shows what its owner has chosen: a press only emits `chosen`. The
/// chosen one takes the Tab key. (It is not a `FocusableItem`, because a template fixes the role.)
T.RadioButton {
    id: root

    required property bool on
    /// The Tab key reaches this choice.
    required property bool isTabStop
    required property real corner
    property string hint
    property bool lit: enabled && (hovered || down)
    /// Shows the keyboard focus.
    property bool ringed: visualFocus

    signal chosen()

    // A press changes `checked` first. The binding restores it if the owner does not follow the choice.
    function follow() {
        checked = Qt.binding(() => root.on)
    }

    // For screen readers, which also press disabled controls.
    function choose() {
        if (enabled)
            chosen()
    }

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    // The focus ring is drawn above the neighbours.
    z: ringed ? 1 : 0
    autoExclusive: false
    checked: on
    hoverEnabled: true
    // An item that has the focus may not leave the chain of the Tab key.
    focusPolicy: isTabStop || activeFocus ? Qt.TabFocus : Qt.NoFocus
    onToggled: follow()
    onClicked: chosen()
    Keys.onReturnPressed: chosen()
    Keys.onEnterPressed: chosen()
    Accessible.role: Accessible.RadioButton
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: on
    Accessible.onPressAction: choose()
    Accessible.onToggleAction: choose()

    FocusRing {
        shown: root.ringed
        corner: root.corner
    }

    HintTip {
        shown: root.hovered
        text: root.hint
    }
}
