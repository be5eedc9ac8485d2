import QtQuick

// A text of a row, as high as the line of its role. The row exposes it to screen readers.
Text {
    id: root

    // The space above and below the text within its line.
    property real leading: 0

    textFormat: Text.PlainText
    elide: Text.ElideRight
    topPadding: leading
    bottomPadding: leading
}
