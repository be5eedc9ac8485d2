pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Attachments
import Velmora.Composer
import Velmora.Detail
import Velmora.Kit
import Velmora.State
import Velmora.Theme

/// An issue in full: its properties, its texts, its comments and the box for the next one. It is shown in the inspector,
/// or fills a window. All edits go to the store. Another key shows another issue from the beginning: what was typed and
/// opened for the previous one does not stay. (Creating the view anew took 50 ms, which is felt when a key walks through
/// the issues.)
FocusScope {
    id: root

    required property AppStore store
    required property string key
    property bool inWindow: false
    readonly property string title: open.title
    // The height of the toolbar with the space above it.
    readonly property int headHeight: inWindow ? 52 : 40
    readonly property int crumbMargin: Metrics.gapMedium
    /// The height of the box for comments with the space below it.
    readonly property real footHeight: open.isKnown ? height - composer.y : 0
    readonly property IssueFiles files: IssueFiles {
        store: root.store
        key: root.key
    }
    readonly property AttachmentPreviewer previewer: AttachmentPreviewer {
        store: root.store
        key: root.key
        files: root.files.files
        window: root.Window.window
    }

    /// The issue should be closed.
    signal closed()
    /// Beside the list: the user has finished typing, and the list should have the keys again.
    signal finished()

    function leaveField() {
        if (inWindow)
            page.rest();
        else
            finished();
    }

    function show(key: string) {
        open.openOther(key);
        // Beside its window, the inspector may be out of sight.
        if (inWindow)
            root.store.run(Commands.Command.OpenWindow, [key]);
    }

    onKeyChanged: {
        page.begin();
        if (activeFocus)
            leaveField();
    }
    // Escape first leaves the field, and only then the issue.
    Keys.onEscapePressed: inWindow && page.isAtRest ? closed() : leaveField()

    OpenIssue {
        id: open
        store: root.store
        key: root.key
    }

    WindowTitle {
        x: Metrics.pageMargin
        y: (root.headHeight - height) / 2
        width: tools.x - x - Metrics.gapLarge
        visible: root.inWindow && open.isKnown
        issue: open
    }

    DetailToolbar {
        id: tools
        anchors.right: parent.right
        anchors.rightMargin: Metrics.panelPadding
        y: (root.headHeight - height) / 2
        visible: open.isKnown
        inWindow: root.inWindow
        issue: open
    }

    IssueHeader {
        id: header
        x: root.crumbMargin
        y: root.headHeight + Metrics.gapSmall
        width: parent.width - 2 * x
        visible: open.isKnown || !root.inWindow
        inWindow: root.inWindow
        issue: open
        onClosed: root.closed()
        onChosen: key => root.show(key)
    }

    IssuePage {
        id: page
        anchors.top: header.bottom
        anchors.topMargin: Metrics.gapTiny
        anchors.bottom: composer.top
        anchors.bottomMargin: Metrics.gapTiny
        width: parent.width
        visible: open.isKnown
        focus: true
        store: root.store
        issue: open
        files: root.files
        previewer: root.previewer
        ground: root.inWindow ? Theme.content : Theme.inspector
        onFinished: root.leaveField()
        onChosen: key => root.show(key)
    }

    AttachmentDropArea {
        anchors.fill: parent
        files: root.files
    }

    FileImport {
        id: commentFiles
        key: root.key
        window: root.Window.window
        onChosen: (key, files) => {
            if (key === root.key)
                composer.composition.attach(files);
        }
    }

    PreviewHost {
        previewer: root.previewer
    }

    CommentComposer {
        id: composer
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Metrics.gapLarge
        x: 16
        width: parent.width - 2 * x
        visible: open.isKnown
        onFilesWanted: commentFiles.choose()
        composition: IssueComposition {
            store: root.store
            issueKey: root.key
            projectKey: open.projectKey
            allowsInternal: open.isServiceDesk
        }
    }

    When {
        shown: open.errorText !== ""

        UnavailableScreen {
            width: root.width
            height: root.height
            symbol: "exclamationmark.triangle"
            title: "Ticket indisponible"
            description: open.errorText
            action: "Réessayer"
            onActionChosen: open.load()
        }
    }

    When {
        shown: root.key !== "" && !open.isKnown && open.errorText === ""

        Spinner {
            x: (root.width - width) / 2
            y: (root.height - height) / 2
            size: 16
        }
    }
}
