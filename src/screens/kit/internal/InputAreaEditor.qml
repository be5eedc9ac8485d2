pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velmora.Theme
import Velmora.Kit

/// The text of an `InputArea`, with its caret and its placeholder.
T.TextArea {
    id: root

    required property string name
    required property string problem
    property int role: TypeScale.Body
    /// The height of the text with its padding.
    readonly property real wholeHeight: contentHeight + topPadding + bottomPadding

    function speak() {
        if (Accessible.description !== problem)
            Accessible.description = Qt.binding(() => root.problem)
    }

    function leave(forwards: bool) {
        nextItemInFocusChain(forwards).forceActiveFocus(forwards ? Qt.TabFocusReason : Qt.BacktabFocusReason)
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
    Keys.onTabPressed: leave(true)
    Keys.onBacktabPressed: leave(false)
    Accessible.role: Accessible.EditableText
    Accessible.multiLine: true
    Accessible.name: name
    Accessible.description: problem
    // The template overwrites the description with its placeholder when the item is complete and whenever a screen
    // reader starts.
    Accessible.onDescriptionChanged: speak()

    cursorDelegate: TextCaret {
        shown: root.activeFocus && root.selectionStart === root.selectionEnd
    }

    AppText {
        x: root.leftPadding
        y: root.topPadding - leading
        width: root.width - root.leftPadding - root.rightPadding
        visible: root.length === 0 && root.preeditText.length === 0
        text: root.placeholderText
        wrapMode: Text.Wrap
        role: root.role
        color: root.placeholderTextColor
        Accessible.ignored: true
    }
}
