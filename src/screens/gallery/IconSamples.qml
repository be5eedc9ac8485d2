pragma ComponentBehavior: Bound
import QtQuick
import Velmora.Gallery
import Velmora.Kit
import Velmora.Model

/// Every drawn icon at four sizes.
Column {
    id: root

    spacing: 22

    Row {
        spacing: 24

        Repeater {
            model: Samples.statuses

            Row {
                id: statusSizes

                required property issueStatus modelData

                spacing: 12

                Repeater {
                    model: [10, 14, 28, 56]

                    StatusIcon {
                        required property int modelData

                        anchors.bottom: parent.bottom
                        status: statusSizes.modelData
                        size: modelData
                    }
                }
            }
        }
    }

    Row {
        spacing: 24

        Repeater {
            model: 5

            Row {
                id: prioritySizes

                required property int index

                spacing: 12

                Repeater {
                    model: [10, 14, 28, 56]

                    PriorityIcon {
                        required property int modelData

                        anchors.bottom: parent.bottom
                        level: prioritySizes.index
                        size: modelData
                    }
                }
            }
        }
    }

    Row {
        spacing: 24

        Repeater {
            model: Samples.types

            Row {
                id: typeSizes

                required property issueType modelData

                spacing: 12

                Repeater {
                    model: [11, 22, 33, 44]

                    TypeIcon {
                        required property int modelData

                        anchors.bottom: parent.bottom
                        type: typeSizes.modelData
                        size: modelData
                    }
                }
            }
        }
    }

    Row {
        spacing: 24

        Repeater {
            model: Samples.projects

            Row {
                id: badgeSizes

                required property project modelData

                spacing: 12

                Repeater {
                    model: [16, 32, 48, 64]

                    ProjectBadge {
                        required property int modelData

                        anchors.bottom: parent.bottom
                        project: badgeSizes.modelData
                        size: modelData
                    }
                }
            }
        }
    }

    Row {
        spacing: 24

        Repeater {
            model: Samples.people

            Row {
                id: avatarSizes

                required property jiraUser modelData

                spacing: 12

                Repeater {
                    model: [18, 24, 36, 54]

                    Avatar {
                        required property int modelData

                        anchors.bottom: parent.bottom
                        user: avatarSizes.modelData
                        hasUser: true
                        size: modelData
                    }
                }
            }
        }

        Repeater {
            model: [18, 24, 36, 54]

            Avatar {
                required property int modelData

                anchors.bottom: parent.bottom
                user: Samples.nobody
                hasUser: false
                size: modelData
            }
        }
    }

    Row {
        spacing: 10

        Repeater {
            model: Samples.labels

            LabelChip {
                required property string modelData

                name: modelData
            }
        }

        DueBadge {
            text: "31 oct."
        }

        DueBadge {
            text: "Demain"
        }

        DueBadge {
            text: "Demain"
            compact: true
        }

        DueBadge {
            text: "Hier"
            late: true
        }
    }

    Row {
        spacing: 10

        Repeater {
            model: ["1", "C", "↑↓", "↩", "Ctrl+K", "Ctrl+Maj+O", "esc"]

            KeyCap {
                required property string modelData

                anchors.verticalCenter: parent.verticalCenter
                text: modelData
            }
        }

        CheckMark {
            anchors.verticalCenter: parent.verticalCenter
            checked: false
        }

        CheckMark {
            anchors.verticalCenter: parent.verticalCenter
            checked: true
        }

        Spinner {
            anchors.verticalCenter: parent.verticalCenter
            running: false
        }

        Spinner {
            anchors.verticalCenter: parent.verticalCenter
            running: false
            size: 28
        }
    }

    Row {
        spacing: 30

        AppGlyph {
            size: 52
        }

        AppGlyph {
            size: 64
        }

        AppGlyph {
            size: 76
        }
    }

    Column {
        Repeater {
            model: ["Display", "Title1", "Title2", "Title3", "Field17", "Headline", "Body14", "Body", "Small", "Badge",
                "Caption", "Micro", "Nano", "Code"]

            AppText {
                required property int index
                required property string modelData

                role: index
                text: modelData + " : Notifications e-mail reçues en double, 0123456789"
            }
        }
    }
}
