import QtQuick
import Velmora.Kit
import Velmora.Theme

// The summary of an issue's parent, beside the issue's own summary.
Row {
    id: root

    required property string summary

    // The space between the chevron and the summary.
    readonly property int markGap: 3

    spacing: root.markGap

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        name: "chevron.right"
        size: 8
        weight: "bold"
        color: Theme.text3
    }

    AppText {
        anchors.verticalCenter: parent.verticalCenter
        role: TypeScale.Small
        color: Theme.text3
        text: root.summary
        Accessible.ignored: true
    }
}
