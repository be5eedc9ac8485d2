import QtQuick
import QtQuick.Templates as T
import Velmora.Kit
import Velmora.Theme

/// A tab of a `TabList`: a symbol above a title. It shows what its owner has chosen: a press only emits `chosen`. (It is
/// not a `FocusableItem`, because a template fixes the role, and this one is a page tab.)
T.TabButton {
    id: root

    required property string symbol
    required property bool on
    /// The Tab key reaches this tab.
    property bool isTabStop: on
    property real corner: Metrics.radiusBubble
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

    implicitWidth: Math.max(104, Math.ceil(implicitContentWidth) + 16)
    implicitHeight: Math.max(56, Math.ceil(implicitContentHeight))
    autoExclusive: false
    checked: on
    hoverEnabled: true
    // An item that has the focus may not leave the chain of the Tab key.
    focusPolicy: isTabStop || activeFocus ? Qt.TabFocus : Qt.NoFocus
    onToggled: follow()
    onClicked: chosen()
    Keys.onReturnPressed: chosen()
    Keys.onEnterPressed: chosen()
    Accessible.role: Accessible.PageTab
    Accessible.name: text
    Accessible.selectable: true
    Accessible.selected: on
    Accessible.onPressAction: choose()

    background: Rectangle {
        radius: root.corner
        color: root.on ? Theme.openFill : "transparent"

        HoverFill {
            radius: root.corner
            shown: root.lit && (root.down || !root.on)
            fill: root.down ? Theme.openFill : Theme.hoverFill
        }
    }

    contentItem: IconTabLabel {
        text: root.text
        symbol: root.symbol
        on: root.on
    }

    FocusRing {
        shown: root.ringed
        corner: root.corner
    }
}
