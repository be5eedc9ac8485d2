// What the icons of the rows cost while a list scrolls: 10,000 rows with every icon that a row of issues has, beside
// 10,000 empty ones, in windows of one size and one process. Every other row is shaded: where nothing changes on the
// screen there are no frames to time.

#include "FrameTable.h"
#include "FrameTimer.h"
#include "screens/kit/KitProviders.h"
#include "screens/theme/Fonts.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QtQml/qqmlextensionplugin.h>

#include <optional>

Q_IMPORT_QML_PLUGIN(Velmora_ModelPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_ThemePlugin)
Q_IMPORT_QML_PLUGIN(Velmora_KitPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_StatePlugin)
Q_IMPORT_QML_PLUGIN(Velmora_OptionsPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_GalleryPlugin)

using namespace Qt::StringLiterals;

namespace {

constexpr int Steps = 180;

/// A window with a list of 10,000 rows, each 38 high with this in it.
QByteArray listOf(const QByteArray &row)
{
    return R"(import QtQuick
import Velmora.Gallery
import Velmora.Kit
import Velmora.Theme
Window {
    width: 1320; height: 840; visible: true; color: Theme.content
    ListView {
        anchors.fill: parent
        model: 10000
        delegate: Item {
            id: cell
            required property int index
            width: ListView.view.width
            height: 38
            Rectangle { anchors.fill: parent; visible: cell.index % 2 === 0; color: Theme.hoverFill }
            )" +
           row + R"(
        }
    }
})";
}

// Values vary by row as they would in a list of issues.
constexpr auto icons = R"(Row {
    x: 20; spacing: 12
    PriorityIcon { level: cell.index % 5 }
    StatusIcon { status: Samples.statuses[cell.index % 6] }
    TypeIcon { type: Samples.types[cell.index % 6] }
    ProjectBadge { project: Samples.projects[cell.index % 4] }
    LabelChip { name: Samples.labels[cell.index % 8] }
    LabelChip { name: Samples.labels[(cell.index + 3) % 8] }
    DueBadge { text: "31 oct."; late: cell.index % 7 === 0 }
    Avatar { user: Samples.people[cell.index % 3]; hasUser: cell.index % 4 > 0 }
})";

void measure(std::optional<FrameTable> &table, const QString &what, const QByteArray &row)
{
    QQmlApplicationEngine engine;
    engine.addImportPath(u":/qt/qml"_s);
    registerKitProviders(engine);
    engine.loadData(listOf(row));
    if (engine.rootObjects().isEmpty())
        qFatal("The list does not open.");
    FrameTimer timer(*qobject_cast<QQuickWindow *>(engine.rootObjects().first()));
    timer.settle();
    const auto frames = timer.scroll(Steps);
    const auto dropped = Steps - frames.size();
    if (!table)
        table.emplace(timer.renderer());
    table->add(u"%1, %2 dropped"_s.arg(what).arg(dropped), frames);
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const QGuiApplication application(argc, argv);
    if (!Fonts::load())
        qFatal("The fonts of the program are missing.");
    std::optional<FrameTable> table;
    measure(table, u"10000 empty rows"_s, {});
    measure(table, u"10000 rows of icons"_s, icons);
    // Once more, to tell how far the machine itself has changed meanwhile.
    measure(table, u"10000 empty rows"_s, {});
    return 0;
}
