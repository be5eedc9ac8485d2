pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velmora.Kit
import Velmora.Theme

/// A row of a menu: a check mark and a symbol or a drawn icon before the title, and the shortcut or the submenu chevron
/// after it. A title that is too long is elided, and the whole title is shown as a hint while the row is highlighted.
/// A destructive row is red.
T.MenuItem {
    id: root

    property string symbol
    property Item leading: null
    property string shortcut
    property bool destructive: false
    /// Set by the menu if one of its rows has a check mark, so that all titles are aligned.
    property bool hasMarkRoom: checked
    property bool hasLeading: symbol.length > 0 || leading !== null
    /// Creates the content of the row. In a menu of many rows, set it to false: the menu sets it once the row is in
    /// view.
    property bool isNear: true
    readonly property string line: MenuMeasure.oneLine(text)
    readonly property bool opensMenu: subMenu !== null
    /// The width of the shortcut or the submenu chevron, with its distance from the title.
    readonly property real tailWidth: opensMenu ? 20 : shortcut.length > 0 ? 16 + MenuMeasure.shortcutWidth(shortcut) : 0
    readonly property color ink: !enabled ? Theme.text4 : highlighted ? Theme.textOnAccent : destructive ? Theme.redText : Theme.text1
    readonly property color quietInk: !enabled ? Theme.text4 : highlighted ? Theme.textOnAccent : destructive ? Theme.redText : Theme.text2

    function activate() {
        if (checkable)
            toggle()
        triggered()
        if (!subMenu)
            menu?.dismiss()
    }

    implicitWidth: leftPadding + (hasMarkRoom ? 21 : 0) + (hasLeading ? 25 : 0) + MenuMeasure.titleWidth(line) + tailWidth + rightPadding
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

    contentItem: Item {
        When {
            shown: root.isNear

            PopupMenuLabel {
                anchors.fill: parent
                text: root.line
                symbol: root.symbol
                leading: root.leading
                shortcut: root.shortcut
                hasMarkRoom: root.hasMarkRoom
                hasLeading: root.hasLeading
                isMarked: root.checked
                opensMenu: root.opensMenu
                isHighlighted: root.highlighted
                ink: root.ink
                quietInk: root.quietInk
            }
        }
    }

    background: Item {
        When {
            shown: root.highlighted

            Rectangle {
                anchors.fill: parent
                radius: 7
                color: root.destructive ? Theme.redFill : Theme.accentFill

                PressShade {
                    radius: 7
                    accented: true
                    hovered: root.down
                    pressed: true
                }
            }
        }
    }
}
