import QtQuick
import Velmora.Model
import Velmora.Kit

/// The coloured square with the initial of a project.
DrawnIcon {
    id: root

    required property project project
    property real size: 16

    side: size
    source: IconAddresses.project(project, size)
    Accessible.name: project.name
}
