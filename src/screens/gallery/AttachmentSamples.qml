pragma ComponentBehavior: Bound
import QtQuick
import Velmora.Attachments
import Velmora.Gallery
import Velmora.Theme

/// Files: tiles of each kind, in their states, and what stands for a file inside texts.
Item {
    id: root

    Column {
        width: 760
        spacing: Metrics.gapSection

        Grid {
            columns: 5
            spacing: Metrics.gapMedium

            Repeater {
                model: SampleFiles.files

                FileTile {
                    required property attachmentFile modelData
                    required property int index

                    file: modelData
                    current: index === 2
                    loading: index === 3
                    spins: false
                }
            }

            UploadTile {
                upload: SampleFiles.upload
                spins: false
            }
        }

        Flow {
            width: parent.width
            spacing: Metrics.gap

            Repeater {
                model: SampleFiles.files

                FileChip {
                    required property attachmentFile modelData

                    file: modelData
                }
            }

            FileChip {
                file: SampleFiles.trick
            }
        }

        Row {
            spacing: Metrics.gapLarge

            InlinePicture {
                room: 180
                file: SampleFiles.files[0]
            }

            Column {
                spacing: Metrics.gapMedium

                InlineFile {
                    file: SampleFiles.files[1]
                }

                UnknownMedia {}

                AttachButton {}
            }

            Item {
                width: 320
                height: 120

                DropOverlay {
                    anchors.fill: parent
                    shown: true
                    text: "Déposer pour joindre à SUP-41"
                }
            }
        }
    }
}
