import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.Theme

// Says who created the issue, and when.
Item {
    id: root

    required property activityFacts facts
    readonly property int indent: 3

    implicitHeight: Metrics.avatar
    Accessible.role: Accessible.StaticText
    Accessible.name: facts.creationSentence

    Avatar {
        id: picture
        x: root.indent
        size: Metrics.avatar
        user: root.facts.reporter
        hasUser: root.facts.hasReporter
        nobody: root.facts.reporterName
        Accessible.ignored: true
    }

    AppText {
        id: reporter
        x: picture.x + picture.width + Metrics.gap
        width: Math.max(0, Math.min(implicitWidth, root.width - x - deed.implicitWidth - age.implicitWidth - Metrics.gap))
        anchors.verticalCenter: parent.verticalCenter
        weight: Font.Medium
        text: root.facts.reporterName
        Accessible.ignored: true
    }

    AppText {
        id: deed
        x: reporter.x + reporter.width
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.text2
        text: " a créé le ticket"
        Accessible.ignored: true
    }

    AppText {
        id: age
        x: deed.x + deed.width + Metrics.gap
        anchors.verticalCenter: parent.verticalCenter
        tabular: true
        color: Theme.text3
        text: root.facts.creationAge
        Accessible.ignored: true
    }
}
