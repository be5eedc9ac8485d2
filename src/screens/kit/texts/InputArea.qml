pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velmora.Kit
import Velmora.Theme

/// A text field with several lines. It grows with its text from `lowest` to `highest`, and scrolls beyond that. Tab and
/// Shift+Tab leave the field. `name`, `placeholderText`, `problem` and `spoken` have the same meaning as in an
/// `InputField`. With `takesFiles`, local files that are pasted or dropped are reported by `filesGiven`.
FocusScope {
    id: root

    required property string name
    property alias text: editor.text
    property alias placeholderText: editor.placeholderText
    property alias role: editor.role
    property alias spoken: editor.spoken
    property alias cursorPosition: editor.cursorPosition
    property alias selectionStart: editor.selectionStart
    property alias selectionEnd: editor.selectionEnd
    property alias readOnly: editor.readOnly
    property alias takesFiles: editor.takesFiles
    property real lowest: 76
    property real highest: 240
    property real corner: Metrics.radiusRow
    /// Without a frame, the text stands on the surface around the field, and starts at its edges.
    property bool framed: true
    property string problem
    /// Under the pointer.
    property bool lit: enabled && editor.hovered
    /// Shows the keyboard focus.
    property bool ringed: activeFocus

    /// A key press before the field handles it. An accepted event goes no further.
    signal keyPressed(event: var)
    /// Local files were pasted or dropped: a list of addresses.
    signal filesGiven(files: var)
    /// The caret is at another place of the text, or the text around it has moved.
    signal caretMoved()

    /// The text as it was typed, where `text` has ordinary blanks instead of no-break spaces.
    function exactText(): string {
        return DocumentEdits.textOf(editor.textDocument)
    }

    /// Replaces the selection, or inserts at the caret. The caret is then after the new text. One step of undo.
    function insert(words: string) {
        replace(selectionStart, selectionEnd, words)
    }

    /// Replaces the characters from `start` up to `end`. The caret is then after the new text. One step of undo.
    function replace(start: int, end: int, words: string) {
        DocumentEdits.replace(editor.textDocument, start, end, words)
        editor.cursorPosition = start + words.length
    }

    function select(start: int, end: int) {
        editor.select(start, end)
    }

    /// The caret in the coordinates of the window.
    function caretInWindow(): rect {
        const caret = editor.cursorRectangle
        return editor.mapToItem(null, caret.x, caret.y, caret.width, caret.height)
    }

    implicitWidth: 290
    implicitHeight: Math.max(lowest, Math.min(highest, editor.wholeHeight + (framed ? 2 : 0)))

    FieldSurface {
        anchors.fill: parent
        visible: root.framed
        corner: root.corner
        hovered: root.lit
        focused: root.ringed
        invalid: root.enabled && root.problem.length > 0
    }

    Flickable {
        id: view

        anchors.fill: parent
        anchors.margins: root.framed ? 1 : 0
        clip: true
        // Without overflow the wheel events are left to the page.
        interactive: editor.wholeHeight > height
        boundsBehavior: Flickable.StopAtBounds
        onHeightChanged: editor.followView()

        T.TextArea.flickable: InputAreaEditor {
            id: editor

            name: root.name
            problem: root.problem
            onlyInView: true
            leftPadding: root.framed ? 9 : 0
            rightPadding: leftPadding
            topPadding: root.framed ? 6 : 0
            bottomPadding: topPadding
            onKeyPressed: event => root.keyPressed(event)
            onFilesPasted: files => root.filesGiven(files)
            onCursorRectangleChanged: root.caretMoved()
        }

        T.ScrollBar.vertical: OverlayScrollBar {
            thickness: 5
        }
    }

    DropArea {
        anchors.fill: parent
        enabled: root.takesFiles && !root.readOnly
        onEntered: drag => drag.accepted = LocalFiles.among(drag.urls).length > 0
        onDropped: drop => {
            root.filesGiven(LocalFiles.among(drop.urls))
            drop.accept(Qt.CopyAction)
        }
    }
}
