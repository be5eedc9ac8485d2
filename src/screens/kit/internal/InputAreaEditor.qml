pragma ComponentBehavior: Bound
import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The text of an `InputArea` or a `TitleField`, with its caret and its placeholder.
LongTextArea {
    id: root

    required property string name
    required property string problem
    /// The description for screen readers, in addition to the name.
    property string spoken: problem
    property int role: TypeScale.Body
    /// Pasted files are reported, and not inserted as text.
    property bool takesFiles: false
    /// The height of the text with its padding.
    readonly property real wholeHeight: contentHeight + topPadding + bottomPadding

    /// A key press before the editor handles it. An accepted event goes no further.
    signal keyPressed(event: var)
    /// Local files were pasted: a list of addresses.
    signal filesPasted(files: var)

    function speak() {
        if (Accessible.description !== spoken)
            Accessible.description = Qt.binding(() => root.spoken)
    }

    function leave(forwards: bool): bool {
        root.nextItemInFocusChain(forwards).forceActiveFocus(forwards ? Qt.TabFocusReason : Qt.BacktabFocusReason)
        return true
    }

    function handle(event: var) {
        keyPressed(event)
        if (!event.accepted && (event.key === Qt.Key_Tab || event.key === Qt.Key_Backtab))
            event.accepted = leave(event.key === Qt.Key_Tab && !(event.modifiers & Qt.ShiftModifier))
        else if (!event.accepted && takesFiles && event.matches(StandardKey.Paste))
            event.accepted = report(LocalFiles.onClipboard())
    }

    function report(files: var): bool {
        if (files.length > 0)
            filesPasted(files)
        return files.length > 0
    }

    leftPadding: 9
    rightPadding: 9
    topPadding: 6
    bottomPadding: 6
    wrapMode: TextEdit.Wrap
    textFormat: TextEdit.PlainText
    font: TypeScale.font(role)
    color: enabled ? Theme.text1 : Theme.text4
    placeholderTextColor: enabled ? Theme.text3 : Theme.text4
    selectionColor: Theme.textSelection
    selectedTextColor: Theme.text1
    selectByMouse: true
    hoverEnabled: true
    focus: true
    Keys.onPressed: event => handle(event)
    Accessible.role: Accessible.EditableText
    Accessible.multiLine: true
    Accessible.readOnly: readOnly
    Accessible.name: name
    Accessible.description: spoken
    // The template overwrites the description with its placeholder when the item is complete and whenever a screen
    // reader starts.
    Accessible.onDescriptionChanged: speak()

    cursorDelegate: TextCaret {
        shown: root.activeFocus && !root.readOnly && root.selectionStart === root.selectionEnd
    }

    AppText {
        x: root.leftPadding
        y: root.topPadding - leading
        width: root.width - root.leftPadding - root.rightPadding
        // A placeholder that does not fit is elided, not cut off.
        height: root.height - y
        visible: root.length === 0 && root.preeditText.length === 0
        text: root.placeholderText
        wrapMode: Text.Wrap
        role: root.role
        color: root.placeholderTextColor
        Accessible.ignored: true
    }
}
