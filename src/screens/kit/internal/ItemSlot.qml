import QtQuick

/// A place for an item that somebody else declared: takes it in and centres it.
Item {
    id: slot

    property Item content: null

    onContentChanged: if (content) content.parent = slot

    Binding {
        target: slot.content
        property: "x"
        value: slot.content ? Math.round((slot.width - slot.content.width) / 2) : 0
        when: slot.content !== null
    }

    Binding {
        target: slot.content
        property: "y"
        value: slot.content ? Math.round((slot.height - slot.content.height) / 2) : 0
        when: slot.content !== null
    }
}
