import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A title without a border, which grows over as many lines as it needs but contains no line break: Return submits it,
/// and pasted line breaks become blanks. `name` is its name for screen readers. `role` is its role of the type scale.
FocusScope {
    id: root

    required property string name
    property alias text: editor.text
    property alias placeholderText: editor.placeholderText
    property alias role: editor.role
    property alias readOnly: editor.readOnly
    property alias cursorPosition: editor.cursorPosition

    /// Return was pressed.
    signal accepted()
    /// A key press before the field handles it. An accepted event goes no further.
    signal keyPressed(event: var)

    /// The text as it was typed, where `text` has ordinary blanks instead of no-break spaces.
    function exactText(): string {
        return DocumentEdits.textOf(editor.textDocument)
    }

    function handle(event: var) {
        keyPressed(event)
        if (event.accepted || !isSubmission(event.key, event.modifiers))
            return
        event.accepted = true
        accepted()
    }

    // Return with a modifier is a command of the screen.
    function isSubmission(key: int, modifiers: int): bool {
        const others = Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier
        return (key === Qt.Key_Return || key === Qt.Key_Enter) && !(modifiers & others)
    }

    implicitWidth: 290
    implicitHeight: editor.wholeHeight

    InputAreaEditor {
        id: editor

        width: root.width
        height: wholeHeight
        leftPadding: 0
        rightPadding: 0
        topPadding: 0
        bottomPadding: 0
        role: TypeScale.Title1
        // In any script, as a title is shown elsewhere.
        horizontalAlignment: TextEdit.AlignLeft
        name: root.name
        problem: ""
        onKeyPressed: event => root.handle(event)
        onTextChanged: DocumentEdits.joinLines(textDocument)
    }
}
