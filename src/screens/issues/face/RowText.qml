import QtQuick

// A text of a row, as high as the line of its role. The row speaks for it.
Text {
    id: root

    // What its line leaves free above and below it.
    property real leading: 0

    textFormat: Text.PlainText
    elide: Text.ElideRight
    topPadding: leading
    bottomPadding: leading
}
