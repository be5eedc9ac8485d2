import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.Theme

// One row of the form: a symbol and a field. A secure field shows dots, and neither the dots nor the text is exposed to
// screen readers.
FocusScope {
    id: root

    required property string symbol
    // What screen readers call the field.
    required property string name
    property string placeholder: name
    // Not called `text`, because screen readers read a property of that name.
    property alias typed: field.text
    property bool secure: false

    signal edited(text: string)

    // The font is set as a whole, because setting one of its properties would replace the font of the role.
    function faceOf(role: int, spacing: real): font {
        const face = TypeScale.font(role);
        face.letterSpacing = spacing;
        return face;
    }

    implicitHeight: Metrics.largeButtonHeight
    Accessible.ignored: !secure
    Accessible.role: Accessible.EditableText
    Accessible.name: name
    Accessible.description: "Texte masqué"
    Accessible.focusable: true
    Accessible.focused: field.activeFocus

    InputField {
        id: field

        anchors.fill: parent
        focus: true
        activeFocusOnTab: true
        name: root.name
        spoken: root.placeholder === root.name ? "" : "Par exemple " + root.placeholder
        placeholderText: root.placeholder
        placeholderTextColor: Theme.text2
        role: TypeScale.Body14
        leftPadding: 42
        rightPadding: 14
        echoMode: root.secure ? TextInput.Password : TextInput.Normal
        passwordCharacter: "•"
        font: root.faceOf(field.role, root.secure && field.length > 0 ? 2 : 0)
        inputMethodHints: Qt.ImhNoAutoUppercase | Qt.ImhNoPredictiveText | (root.secure ? Qt.ImhSensitiveData : 0)
        Accessible.ignored: root.secure
        onTextEdited: root.edited(text)

        background: FieldOutline {
            focused: field.activeFocus
        }
    }

    Symbol {
        x: 14 + (18 - width) / 2
        anchors.verticalCenter: parent.verticalCenter
        name: root.symbol
        size: 13.5
        color: Theme.text2
    }
}
