import QtQuick

// A text of a row, as high as the line of its role. The row exposes it to screen readers.
Text {
    id: root

    // The space above and below the text within its line.
    property real leading: 0

    textFormat: Text.PlainText
    elide: Text.ElideRight
    // A text in a right-to-left script would otherwise be aligned to the right edge.
    horizontalAlignment: Text.AlignLeft
    topPadding: leading
    bottomPadding: leading
}
