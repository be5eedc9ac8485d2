import QtQuick
import Velmora.Gallery
import Velmora.Kit
import Velmora.Options
import Velmora.Theme

/// Floating surfaces: lists of options, a calendar, display options, the surfaces of a sheet and a toast, and chips in
/// a wrapping row.
Item {
    id: root

    SamplePanel {
        width: 260

        OptionListView {
            width: parent.width
            placeholder: "Assigner…"
            source: SampleOptions { kind: SampleOptions.People }
        }
    }

    SamplePanel {
        x: 290

        OptionListView {
            width: parent.width
            placeholder: "Ajouter des étiquettes…"
            source: SampleOptions { kind: SampleOptions.Labels }
        }
    }

    SamplePanel {
        y: 230
        width: 260

        OptionListView {
            width: parent.width
            placeholder: "Statut…"
            source: SampleOptions { kind: SampleOptions.Statuses }
        }
    }

    SamplePanel {
        x: 610

        DatePicker {
            width: parent.width
            day: "2026-10-31"
            today: "2026-10-29"
        }
    }

    SamplePanel {
        x: 290
        y: 350

        Column {
            x: 16
            width: parent.width - 32
            topPadding: 12
            bottomPadding: 12
            spacing: 8

            SampleLine {
                text: "Regrouper par"
                control: MenuPicker { name: "Regrouper par"; choices: ["Statut", "Assigné"]; current: 0 }
            }

            SampleLine {
                text: "Afficher les tickets terminés"
                control: ToggleSwitch { name: "Afficher les tickets terminés"; checked: true }
            }

            SampleLine {
                text: "Présentation"
                control: SegmentedPicker { name: "Présentation"; choices: ["Liste", "Tableau"]; current: 0 }
            }

            ProgressBar {
                width: parent.width
                name: "Téléchargement"
                value: 0.4
            }
        }
    }

    Column {
        x: 610
        y: 270
        spacing: 16

        FlowLayout {
            width: 290
            spacing: 8
            lineSpacing: 8

            GlassChip {
                title: "En cours"
                leading: StatusIcon { status: Samples.statuses[2] }
            }

            GlassChip {
                title: "Haute"
                leading: PriorityIcon { level: 1 }
            }

            GlassChip {
                title: "Noam Talvère"
                leading: Avatar { user: Samples.people[0]; hasUser: true }
            }

            GlassChip {
                title: "Étiquettes"
                leading: Symbol { name: "tag"; size: 12; color: Theme.text2 }
            }

            LabelChip { name: "ios" }

            LabelChip { name: "auth" }

            DueBadge { text: "31 oct." }

            DueBadge { text: "Hier"; late: true }

            KeyCap { text: "Ctrl+K" }
        }

        ToastCard {
            message: "Lien copié"
            symbol: "link"
            isError: false
        }

        ToastCard {
            message: "Impossible de joindre le serveur."
            symbol: "exclamationmark.triangle.fill"
            isError: true
        }

        GlassPanel {
            width: 290
            height: 90
            radius: Metrics.radiusSheet
            color: Theme.elevated
            shadow: "sheet"
        }
    }
}
