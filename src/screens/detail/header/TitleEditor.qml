import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.Theme

// The title of an issue, which is edited in place. While it has the focus, changes that arrive do not touch its text.
FocusScope {
    id: root

    required property OpenIssue issue
    readonly property string summary: issue.issue.summary

    // The user has finished typing, and the focus should go elsewhere.
    signal finished()

    // A text without words is replaced by the title as it was.
    function commit() {
        root.issue.rename(field.text);
        reset();
    }

    function reset() {
        field.text = root.summary;
    }

    implicitHeight: field.y + field.implicitHeight
    Accessible.role: Accessible.Heading
    Accessible.name: summary
    onSummaryChanged: if (!field.activeFocus) reset()
    Keys.onEscapePressed: {
        reset();
        finished();
    }

    TitleField {
        id: field

        y: Metrics.gap
        width: root.width
        focus: true
        name: "Titre"
        placeholderText: "Titre du ticket"
        onAccepted: {
            root.commit();
            root.finished();
        }
        onActiveFocusChanged: if (!activeFocus) root.commit()
        Component.onCompleted: root.reset()
        // The issue was left by a press that does not take the focus.
        Component.onDestruction: if (activeFocus) root.issue.rename(text)
    }
}
