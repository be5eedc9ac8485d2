import QtQuick

/// A container for an item that was declared elsewhere: becomes its parent and centres it.
Item {
    id: root

    property Item content: null

    onContentChanged: if (content) content.parent = root

    Binding {
        target: root.content
        property: "x"
        value: root.content ? Math.round((root.width - root.content.width) / 2) : 0
        when: root.content !== null
    }

    Binding {
        target: root.content
        property: "y"
        value: root.content ? Math.round((root.height - root.content.height) / 2) : 0
        when: root.content !== null
    }
}
