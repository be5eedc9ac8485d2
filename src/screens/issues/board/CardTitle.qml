import QtQuick
import Velmora.Issues

// The summary of an issue on its card, in at most three lines. The card exposes it to screen readers.
Text {
    id: root

    required property CardStyle style

    topPadding: style.titleLeading
    bottomPadding: -style.titleLeading
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    maximumLineCount: 3
    elide: Text.ElideRight
    // A text in a right-to-left script would otherwise be aligned to the right edge.
    horizontalAlignment: Text.AlignLeft
    lineHeightMode: Text.FixedHeight
    lineHeight: style.titleLine
    font: style.titleFont
    color: style.ink
}
