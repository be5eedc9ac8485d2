pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Model
import Velmora.State
import Velmora.Theme

// The header above the list of a recap: the period, whose work it covers, the counters, and a report to copy.
GlassPanel {
    id: root

    required property AppStore store

    readonly property activityHeaderData content: store.activityHeader
    // Between the parts of the header.
    readonly property int partGap: 16
    // Between two counters, and above and below them.
    readonly property int pillGap: 20
    readonly property int pillMargin: 5
    // The buttons for the previous and the next period.
    readonly property int periodButton: 26
    readonly property int periodGap: 2
    readonly property int controlHeight: 28

    implicitHeight: flow.implicitHeight + 2 * Metrics.panelPadding
    radius: Metrics.radiusRecap
    color: Theme.glass
    shadow: "capsule"

    FlowLayout {
        id: flow
        anchors.left: parent.left
        anchors.right: copy.left
        anchors.top: parent.top
        anchors.leftMargin: Metrics.panelPadding
        anchors.rightMargin: Metrics.gapLarge
        anchors.topMargin: Metrics.panelPadding
        spacing: root.partGap
        lineSpacing: Metrics.panelPadding

        Row {
            height: root.controlHeight
            spacing: Metrics.gap

            AppText {
                anchors.verticalCenter: parent.verticalCenter
                role: TypeScale.Headline
                text: root.content.title
            }

            AppText {
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.text2
                text: root.content.rangeLabel
            }
        }

        Row {
            height: root.controlHeight
            spacing: root.periodGap

            PeriodButton {
                name: root.content.previousHelp
                symbol: "chevron.left"
                onClicked: root.store.showPreviousPeriod()
            }

            PeriodButton {
                name: root.content.nextHelp
                symbol: "chevron.right"
                enabled: root.content.hasNext
                onClicked: root.store.showNextPeriod()
            }
        }

        SegmentedPicker {
            name: "Période"
            choices: ["Semaine", "Mois"]
            current: root.content.isWeek ? 0 : 1
            onChosen: index => root.store.showRange(index === 0 ? Model.ActivityRange.Week : Model.ActivityRange.Month)
        }

        SegmentedPicker {
            name: "Personnes"
            choices: ["Moi", "Équipe"]
            current: root.content.teamWide ? 1 : 0
            onChosen: index => root.store.showPeople(index === 0 ? Recap.People.Me : Recap.People.Team)
        }

        Row {
            topPadding: root.pillMargin
            bottomPadding: root.pillMargin
            spacing: root.pillGap

            Repeater {
                // The model is a number, so that a counter keeps its item and animates when its value changes.
                model: root.content.pillCount

                RecapPill {
                    required property int index
                    readonly property statPill pill: root.content.pill(index)
                    anchors.verticalCenter: parent ? parent.verticalCenter : undefined
                    symbol: pill.symbol
                    value: pill.value
                    label: pill.label
                }
            }
        }
    }

    PushButton {
        id: copy
        anchors.right: parent.right
        anchors.rightMargin: Metrics.gapLarge
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Metrics.panelPadding
        height: root.controlHeight
        leftPadding: Metrics.panelPadding
        symbol: "doc.on.clipboard"
        text: "Copier le récap"
        hint: "Copie un résumé Markdown, prêt pour Slack ou un compte rendu"
        onClicked: root.store.copyActivityRecap()
    }

    component PeriodButton: IconButton {
        anchors.verticalCenter: parent?.verticalCenter
        side: root.periodButton
        corner: side / 2
        symbolSize: 10
        symbolWeight: "bold"
        ink: Theme.text1

        Rectangle {
            z: -1
            anchors.fill: parent
            radius: root.periodButton / 2
            color: Theme.ink(0.05)
        }
    }
}
