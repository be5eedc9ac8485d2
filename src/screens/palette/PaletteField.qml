import QtQuick
import Velmora.Kit
import Velmora.Palette
import Velmora.Theme

// The search field of the palette. It has no background of its own because it is the head of the panel. Screen readers
// announce each change of its description, because the focus stays here while the highlight moves.
InputField {
    id: root

    required property CommandPalette commandPalette

    role: TypeScale.Field17
    name: commandPalette.placeholder
    placeholderText: commandPalette.placeholder
    leftPadding: 12
    rightPadding: 0
    background: null
    text: commandPalette.query
    spoken: commandPalette.spokenState
    onTextEdited: commandPalette.query = text
}
