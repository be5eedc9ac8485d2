import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.Theme

// One row of the form: a symbol and a field. A secure field shows dots, and neither the dots nor the text is exposed to
// screen readers.
FocusScope {
    id: root

    required property string symbol
    required property string placeholder
    // Not called `text`, because screen readers read a property of that name.
    property alias typed: field.text
    property bool secure: false

    signal edited(text: string)

    implicitHeight: Metrics.largeButtonHeight
    Accessible.ignored: !secure
    Accessible.role: Accessible.EditableText
    Accessible.name: placeholder
    Accessible.description: "Texte masqué"
    Accessible.focusable: true
    Accessible.focused: field.activeFocus

    InputField {
        id: field

        anchors.fill: parent
        focus: true
        activeFocusOnTab: true
        name: root.placeholder
        placeholderText: root.placeholder
        placeholderTextColor: Theme.text2
        role: TypeScale.Body14
        leftPadding: 42
        rightPadding: 14
        echoMode: root.secure ? TextInput.Password : TextInput.Normal
        passwordCharacter: "•"
        font.letterSpacing: root.secure && length > 0 ? 2 : 0
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
