import QtQuick
import Velmora.Kit
import Velmora.Palette
import Velmora.Theme

// What the palette searches for. It has no surface of its own: it is the panel's head. What its description says, screen
// readers speak when it changes: the focus stays here while the highlight moves.
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
