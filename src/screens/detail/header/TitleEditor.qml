import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.Theme

// The title of an issue, which is edited in place. While it has the focus, changes that arrive do not touch its text.
FocusScope {
    id: root

    required property OpenIssue issue
    readonly property string summary: issue.issue.summary
    // The issue whose title is being typed.
    property string editedKey

    // The user has finished typing, and the focus should go elsewhere.
    signal finished()

    // A text without words is replaced by the title as it was.
    function commit() {
        issue.rename(editedKey, field.exactText());
        reset();
    }

    // Another issue is shown, or the focus comes or goes.
    function begin() {
        if (editedKey !== "")
            commit();
        else
            reset();
        editedKey = field.activeFocus ? issue.key : "";
    }

    function reset() {
        field.text = summary;
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
        onActiveFocusChanged: root.begin()
        Component.onCompleted: root.reset()
        Component.onDestruction: if (activeFocus) root.issue.rename(root.editedKey, exactText())
    }
}
