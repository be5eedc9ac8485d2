import QtQuick

/// A field for secret text: it shows dots, and exposes neither the text nor its length to screen readers, which only
/// know its `name`. The entered text is `secret`.
FocusScope {
    id: root

    required property string name
    // Not called `text`, because screen readers read a property of that name.
    property alias secret: field.text
    property alias placeholderText: field.placeholderText
    property alias corner: field.corner
    property alias role: field.role
    property alias problem: field.problem
    property alias lit: field.lit
    property alias ringed: field.ringed
    property alias leftPadding: field.leftPadding
    property alias rightPadding: field.rightPadding
    property alias background: field.background

    signal accepted()
    signal textEdited()

    function clear() {
        field.clear()
    }

    implicitWidth: field.implicitWidth
    implicitHeight: field.implicitHeight
    Accessible.role: Accessible.EditableText
    Accessible.name: name
    Accessible.description: problem.length > 0 ? "Texte masqué. " + problem : "Texte masqué"
    Accessible.focusable: true
    Accessible.focused: field.activeFocus

    InputField {
        id: field

        anchors.fill: parent
        focus: true
        name: root.name
        echoMode: TextInput.Password
        passwordCharacter: "•"
        inputMethodHints: Qt.ImhSensitiveData | Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
        // Ignored by accessibility, because the field would expose its text unmasked.
        Accessible.ignored: true
        onAccepted: root.accepted()
        onTextEdited: root.textEdited()
    }
}
