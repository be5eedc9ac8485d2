pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velmora.Kit
import Velmora.Theme

/// A text field with one line. `name` is its name for screen readers. The placeholder is shown while it is empty.
/// `problem` describes what is wrong with the entered text: the field turns red and screen readers announce the
/// problem. Show the text beside the field as well.
T.TextField {
    id: root

    required property string name
    property real corner: Metrics.radiusRow
    property bool glass: false
    property int role: TypeScale.Body
    property string problem
    /// The description for screen readers, in addition to the name.
    property string spoken: problem
    /// Under the pointer.
    property bool lit: enabled && hovered
    /// Shows the keyboard focus.
    property bool ringed: activeFocus

    function speak() {
        if (Accessible.description !== spoken)
            Accessible.description = Qt.binding(() => root.spoken)
    }

    implicitWidth: 190
    implicitHeight: Metrics.fieldHeight
    leftPadding: 10
    rightPadding: 10
    topPadding: 0
    bottomPadding: 0
    verticalAlignment: TextInput.AlignVCenter
    font: TypeScale.font(role)
    color: enabled ? Theme.text1 : Theme.text4
    placeholderTextColor: enabled ? Theme.text3 : Theme.text4
    selectionColor: Theme.textSelection
    selectedTextColor: Theme.text1
    selectByMouse: true
    hoverEnabled: true
    Accessible.role: Accessible.EditableText
    Accessible.name: name
    Accessible.description: spoken
    // The template overwrites the description with its placeholder when the item is complete and whenever a screen
    // reader starts.
    Accessible.onDescriptionChanged: speak()

    cursorDelegate: TextCaret {
        shown: root.activeFocus && root.selectionStart === root.selectionEnd
    }

    background: FieldSurface {
        corner: root.corner
        glass: root.glass
        hovered: root.lit
        focused: root.ringed
        invalid: root.enabled && root.problem.length > 0
    }

    AppText {
        x: root.leftPadding
        width: root.width - root.leftPadding - root.rightPadding
        height: root.height
        verticalAlignment: Text.AlignVCenter
        visible: root.length === 0 && root.preeditText.length === 0
        text: root.placeholderText
        role: root.role
        color: root.placeholderTextColor
        Accessible.ignored: true
    }
}
