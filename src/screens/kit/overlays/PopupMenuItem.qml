import QtQuick
import QtQuick.Templates as T
import Velmora.Kit
import Velmora.Theme

/// A row of a menu: a check mark and a symbol or a drawn icon before the title, and the shortcut or the submenu chevron
/// after it.
T.MenuItem {
    id: root

    property string symbol
    property Item leading: null
    property string shortcut
    /// Set by the menu if one of its rows has a check mark, so that all titles are aligned.
    property bool hasMarkRoom: checked
    readonly property color ink: !enabled ? Theme.text4 : highlighted ? Theme.textOnAccent : Theme.text1
    readonly property color quietInk: !enabled ? Theme.text4 : highlighted ? Theme.textOnAccent : Theme.text2

    function activate() {
        if (checkable)
            toggle()
        triggered()
        if (!subMenu)
            menu?.dismiss()
    }

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Metrics.menuRowHeight
    leftPadding: 9
    rightPadding: 9
    hoverEnabled: true
    Keys.onReturnPressed: activate()
    Keys.onEnterPressed: activate()
    Accessible.role: Accessible.MenuItem
    Accessible.name: text
    Accessible.checkable: checkable
    Accessible.checked: checked
    Accessible.onPressAction: if (enabled) activate()

    contentItem: PopupMenuLabel {
        text: root.text
        symbol: root.symbol
        leading: root.leading
        shortcut: root.shortcut
        hasMarkRoom: root.hasMarkRoom
        isMarked: root.checked
        opensMenu: root.subMenu !== null
        ink: root.ink
        quietInk: root.quietInk
    }

    background: Rectangle {
        radius: 7
        color: root.highlighted ? Theme.accentFill : "transparent"

        PressShade {
            radius: 7
            accented: true
            hovered: root.highlighted && root.down
            pressed: true
        }
    }
}
