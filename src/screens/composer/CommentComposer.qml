pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Composer
import Velmora.Kit
import Velmora.Theme

/// The box in which a comment is written: the editor, who will read it where there is a choice, and the buttons. `filesWanted`
/// asks the host to let the user choose files, which it then gives to `composition.attach`.
FocusScope {
    id: root

    required property Composition composition

    readonly property int padding: 6
    readonly property int readersHeight: composition.hasReaders ? 30 : 0
    // The editor carries out a change that the composition has made.
    property bool isApplying: false

    signal filesWanted()

    function report() {
        if (!isApplying)
            composition.edit(editor.exactText(), editor.cursorPosition);
    }

    function apply(start: int, end: int, words: string, caret: int) {
        isApplying = true;
        editor.replace(start, end, words);
        editor.cursorPosition = caret;
        isApplying = false;
    }

    function write() {
        editor.forceActiveFocus(Qt.OtherFocusReason);
    }

    implicitWidth: 460
    implicitHeight: line.y + line.height + padding
    Accessible.role: Accessible.Grouping
    Accessible.name: "Nouveau commentaire"

    KeyMonitorModifier {
        handler: sending
    }

    DefaultAction {
        id: sending

        onTriggered: root.composition.send()
    }

    Connections {
        target: root.composition

        function onReplaced(start, end, words, caret) {
            root.apply(start, end, words, caret);
        }

        function onRestarted() {
            editor.text = "";
        }

        function onLinked() {
            root.write();
        }
    }

    GlassPanel {
        anchors.fill: parent
        radius: Metrics.radiusSheet
        color: Qt.rgba(Theme.window.r, Theme.window.g, Theme.window.b, 0.82)
        hairline: root.composition.isInternal ? "transparent" : Theme.hairline
        shadow: "bar"
    }

    // The outline of an internal note.
    Rectangle {
        anchors.fill: parent
        visible: root.composition.isInternal
        radius: Metrics.radiusSheet
        color: "transparent"
        border.width: 1
        border.color: Qt.rgba(Theme.internalNote.r, Theme.internalNote.g, Theme.internalNote.b, 0.42)
    }

    When {
        shown: root.composition.hasReaders

        ReaderSwitch {
            x: root.padding + 2
            y: root.padding
            width: root.width - 2 * x
            composition: root.composition
        }
    }

    // The abandoned text of this issue, which is offered while the editor is empty.
    When {
        shown: root.composition.canResume

        PushButton {
            x: root.padding + Metrics.gapTiny
            y: root.padding + root.readersHeight
            look: PushButton.Plain
            text: "Reprendre le brouillon"
            onClicked: {
                root.composition.resume();
                root.write();
            }
        }
    }

    Item {
        id: line

        x: root.padding
        y: root.padding + root.readersHeight + (root.composition.canResume ? Metrics.filterChipHeight : 0)
        width: parent.width - 2 * x
        height: Math.max(30, editor.height + 2 * Metrics.gapSmall)

        FontMetrics {
            id: metrics
            font: TypeScale.font(TypeScale.Body)
        }

        InputArea {
            id: editor

            x: Metrics.gapMedium
            y: Math.max(Metrics.gapSmall, (30 - height) / 2)
            width: buttons.x - x - Metrics.gapTiny
            height: implicitHeight
            focus: true
            framed: false
            takesFiles: true
            lowest: Math.ceil(metrics.lineSpacing)
            highest: Math.ceil(8 * metrics.lineSpacing)
            name: root.composition.isInternal ? "Note interne" : "Commentaire"
            placeholderText: root.composition.placeholder
            spoken: suggestions.spoken
            onTextChanged: root.report()
            onCursorPositionChanged: root.report()
            onFilesGiven: files => root.composition.attach(files)
        }

        Row {
            id: buttons

            anchors.right: parent.right
            anchors.bottom: parent.bottom
            spacing: 2

            IconButton {
                side: 30
                corner: side / 2
                symbolSize: 13
                name: "Mentionner quelqu'un (@)"
                symbol: "at"
                onClicked: {
                    root.composition.beginMention();
                    root.write();
                }
            }

            IconButton {
                side: 30
                corner: side / 2
                symbolSize: 13
                name: "Joindre des fichiers au ticket"
                symbol: "paperclip"
                onClicked: root.filesWanted()
            }

            Item {
                width: 2
                height: 1
            }

            SendButton {
                composition: root.composition
            }
        }
    }

    MentionSuggestions {
        id: suggestions

        box: root
        editor: editor
        composition: root.composition
        sending: sending
    }
}
