pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velmora.Kit
import Velmora.Theme

/// A text field with several lines. It grows with its text from `lowest` to `highest`, and scrolls beyond that. Tab and
/// Shift+Tab leave the field. `name`, `placeholderText` and `problem` have the same meaning as in an `InputField`.
FocusScope {
    id: root

    required property string name
    property alias text: editor.text
    property alias placeholderText: editor.placeholderText
    property alias role: editor.role
    property alias cursorPosition: editor.cursorPosition
    property real lowest: 76
    property real highest: 240
    property real corner: Metrics.radiusRow
    property string problem
    /// Under the pointer.
    property bool lit: enabled && editor.hovered
    /// Shows the keyboard focus.
    property bool ringed: activeFocus

    implicitWidth: 290
    implicitHeight: Math.max(lowest, Math.min(highest, editor.wholeHeight + 2))

    FieldSurface {
        anchors.fill: parent
        corner: root.corner
        hovered: root.lit
        focused: root.ringed
        invalid: root.enabled && root.problem.length > 0
    }

    Flickable {
        id: view

        anchors.fill: parent
        anchors.margins: 1
        clip: true
        // Without overflow the wheel events are left to the page.
        interactive: editor.wholeHeight > height
        boundsBehavior: Flickable.StopAtBounds

        T.TextArea.flickable: InputAreaEditor {
            id: editor

            name: root.name
            problem: root.problem
        }

        T.ScrollBar.vertical: OverlayScrollBar {
            thickness: 5
        }
    }
}
