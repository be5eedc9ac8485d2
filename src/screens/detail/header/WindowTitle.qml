import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.Theme

// The key and the title of an issue, at the top of its window.
Column {
    id: root

    required property OpenIssue issue

    AppText {
        width: root.width
        weight: Font.DemiBold
        tabular: true
        text: root.issue.key
    }

    AppText {
        width: root.width
        role: TypeScale.Caption
        color: Theme.text2
        text: root.issue.issue.summary
        Accessible.ignored: true
    }
}
