pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.Theme

// The editor of a description: the Markdown text, what it may contain, what saving it loses, and the buttons. `saved` and
// `cancelled` say with which reason the focus should leave.
FocusScope {
    id: root

    required property DescriptionEditing editing
    required property real room

    readonly property int padding: Metrics.gapMedium
    // The smallest height of the box around the text.
    readonly property int lowest: 180

    signal saved(reason: int)
    signal cancelled(reason: int)
    signal revealRequested(box: rect)

    // The whole editor, so that its buttons are in sight too. Where the view is too low for it, only the caret.
    function reveal() {
        if (implicitHeight > room)
            revealCaret();
        else if (field.activeFocus)
            revealRequested(Qt.rect(0, 0, width, implicitHeight));
    }

    // A part of the text that scrolls inside the box is revealed at the edge of the box.
    function revealCaret() {
        const caret = field.caretInWindow();
        const place = box.mapFromItem(null, caret.x, caret.y);
        const y = Math.max(0, Math.min(place.y, box.height - caret.height));
        if (field.activeFocus)
            revealRequested(Qt.rect(place.x, y, caret.width, caret.height));
    }

    function reason(button: PushButton): int {
        return button.visualFocus ? Qt.TabFocusReason : Qt.OtherFocusReason;
    }

    implicitHeight: foot.y + foot.height
    Component.onCompleted: {
        field.text = editing.draft;
        editing.settle();
        field.forceActiveFocus(Qt.OtherFocusReason);
        reveal();
    }

    Connections {
        target: root.editing

        function onResumed(text) {
            field.replace(0, field.text.length, text);
            field.forceActiveFocus(Qt.OtherFocusReason);
        }
    }

    KeyMonitorModifier {
        handler: DefaultAction {
            onTriggered: root.saved(Qt.ShortcutFocusReason)
        }
    }

    KeyMonitorModifier {
        handler: CancelKey {
            onTriggered: root.cancelled(Qt.ShortcutFocusReason)
        }
    }

    Rectangle {
        id: box

        width: parent.width
        height: field.height + 2 * root.padding
        radius: Metrics.radiusBubble
        color: Theme.ink(0.045)
        border.width: 1
        border.color: Theme.accentAt(0.4)

        InputArea {
            id: field

            x: root.padding
            y: root.padding
            width: parent.width - 2 * x
            height: implicitHeight
            focus: true
            framed: false
            role: TypeScale.Body14
            lowest: root.lowest - 2 * root.padding
            highest: Math.max(lowest, root.room - foot.height - 4 * root.padding)
            name: "Description"
            placeholderText: "Ajouter une description… (Markdown accepté)"
            onTextChanged: root.editing.draft = exactText()
            onCaretMoved: root.reveal()
            onHeightChanged: root.reveal()
        }
    }

    Item {
        id: foot

        y: box.height + root.padding
        width: parent.width
        height: Math.max(captions.height, buttons.height)

        Flow {
            id: captions

            anchors.verticalCenter: parent.verticalCenter
            width: Math.max(0, buttons.x - root.padding)
            spacing: root.padding

            EditorCaption {
                limit: captions.width
                symbol: "text.badge.checkmark"
                text: "Markdown : **gras**, *italique*, `code`, - [ ] tâches, @Prénom Nom"
            }

            EditorCaption {
                visible: root.editing.simplifies
                limit: captions.width
                symbol: "exclamationmark.triangle"
                symbolColor: Theme.orange
                color: Theme.orangeText
                text: "Tableaux et médias seront simplifiés"
                details: root.editing.losses
            }
        }

        Row {
            id: buttons

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            spacing: root.padding

            PushButton {
                visible: root.editing.canResume
                look: PushButton.Plain
                text: "Reprendre le brouillon"
                onClicked: root.editing.resume()
            }

            PushButton {
                id: cancelling

                text: "Annuler"
                onClicked: root.cancelled(root.reason(cancelling))
            }

            PushButton {
                id: saving

                look: PushButton.Prominent
                text: "Enregistrer"
                onClicked: root.saved(root.reason(saving))
            }
        }
    }
}
