pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Create
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// The sheet for a new issue. The store's request ends as soon as the sheet begins to close; `closed` follows when it is no
// longer visible.
Item {
    id: root

    required property AppStore store
    required property bool isLeaving

    // The sheet has begun to close.
    property bool isClosing: false

    signal closed()

    // Not by bindings: a field would compare its text with ordinary blanks, and lose its caret.
    function showTexts() {
        if (title.exactText() !== form.summary)
            title.text = form.summary;
        if (description.exactText() !== form.details)
            description.text = form.details;
    }

    onIsLeavingChanged: if (isLeaving && !isClosing) sheet.close()
    Component.onCompleted: {
        form.begin();
        sheet.open();
    }

    NewIssueForm {
        id: form

        store: root.store
        onTextChanged: root.showTexts()
        onFinished: sheet.close()
        onRestarted: title.forceActiveFocus(Qt.OtherFocusReason)
    }

    FormSheet {
        id: sheet

        name: "Nouveau ticket"
        implicitWidth: Math.min(680, parent ? parent.width - 32 : 680)
        lift: 0.28
        canSubmit: form.canSubmit
        onSubmitted: form.submit()
        onAboutToHide: {
            root.isClosing = true;
            form.abandon();
            root.store.isCreating = false;
        }
        onClosed: root.closed()

        head: CreateHead {
            width: sheet.width
            form: form
            onResumed: title.forceActiveFocus(Qt.OtherFocusReason)
            onDismissed: sheet.close()
        }

        foot: CreateFoot {
            width: sheet.width
            form: form
        }

        TitleField {
            id: title

            x: Metrics.pageMargin
            y: 20
            width: sheet.width - 2 * x
            name: "Titre du ticket"
            placeholderText: "Titre du ticket"
            focus: true
            readOnly: form.isSubmitting
            onTextChanged: form.summary = exactText()
            onAccepted: description.forceActiveFocus(Qt.TabFocusReason)
        }

        InputArea {
            id: description

            x: Metrics.pageMargin
            // A single line of the title is as high as its role's line.
            y: title.y + Math.max(28, title.height) + Metrics.gapMedium
            width: sheet.width - 2 * x
            height: implicitHeight
            name: "Description"
            placeholderText: "Ajouter une description… (Markdown accepté)"
            role: TypeScale.Body14
            framed: false
            // The description grows until the fields fill the window, and scrolls by itself from then on.
            lowest: 160
            highest: Math.max(lowest, sheet.fieldsRoom - y - chips.height)
            readOnly: form.isSubmitting
            onTextChanged: form.details = exactText()
        }

        CreateChips {
            id: chips

            y: description.y + description.height
            width: sheet.width
            form: form
        }
    }
}
