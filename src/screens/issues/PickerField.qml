import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Theme

// What the picker searches for. It has no surface of its own: it is the panel's head.
InputField {
    id: field

    required property Picker picker

    role: TypeScale.Field17
    name: picker.placeholder
    placeholderText: picker.placeholder
    leftPadding: 12
    rightPadding: 0
    background: null
    text: picker.query
    onTextEdited: picker.query = text
}
