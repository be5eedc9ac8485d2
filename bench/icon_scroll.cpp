// Measures the cost of the icons while a list scrolls. Compares 10,000 rows with every icon of an issue row, each an
// item of the kit; 10,000 rows of the issue list itself, each of which draws its icons in one item; and 10,000 empty
// rows, in windows of the same size and in one process. Every other row is shaded, because a frame is drawn only if
// something on the screen changes.

#include "BenchIssues.h"
#include "FrameTable.h"
#include "FrameTimer.h"
#include "screens/kit/KitProviders.h"
#include "screens/theme/Fonts.h"
#include "state/models/IssueListModel.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QtQml/qqmlextensionplugin.h>

#include <optional>

Q_IMPORT_QML_PLUGIN(Velmora_ModelPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_ThemePlugin)
Q_IMPORT_QML_PLUGIN(Velmora_KitPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_StatePlugin)
Q_IMPORT_QML_PLUGIN(Velmora_OptionsPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_IssuesPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_GalleryPlugin)

using namespace Qt::StringLiterals;

namespace {

constexpr int Steps = 180;

/// A window with a list of 10,000 rows, each 38 pixels high. `delegate` shades every other row.
QByteArray listOf(const QByteArray &model, const QByteArray &delegate)
{
    return R"(import QtQuick
import Velmora.Gallery
import Velmora.Issues
import Velmora.Kit
import Velmora.State
import Velmora.Theme
Window {
    RowLook { id: rowLook; keyWidth: 60 }
    width: 1320; height: 840; visible: true; color: Theme.content
    ListView {
        id: list
        anchors.fill: parent
        model: )" +
           model + R"(
        delegate: )" +
           delegate + R"(
    }
})";
}

/// A delegate with the given contents that shades every other row.
QByteArray rowOf(const QByteArray &content)
{
    return R"(Item {
            id: cell
            required property int index
            width: list.width; height: 38
            Rectangle { anchors.fill: parent; visible: cell.index % 2 === 0; color: Theme.hoverFill }
            )" +
           content + "}";
}

// A row of the issue list, with its texts.
constexpr auto rowOfIssue = R"(IssueRow {
            id: cell
            required property int index
            width: list.width; height: 38; style: rowLook; isSelecting: false
            Rectangle { anchors.fill: parent; visible: cell.index % 2 === 0; color: Theme.hoverFill }
        })";

// The values vary by row, as in a list of issues.
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

/// Every third issue has a due date, and all have labels.
IssueList manyIssues()
{
    IssueList list;
    for (int number = 0; number < 10000; ++number) {
        auto issue = sample(number);
        issue.type = IssueType(u"1"_s, u"Bug"_s);
        if (number % 3 == 0)
            issue.dueDate = QDate(2023, 11, 20);
        list.append(issue);
    }
    return list;
}

void measure(std::optional<FrameTable> &table, IssueListModel &issues, const QString &what,
             const QByteArray &list)
{
    QQmlApplicationEngine engine;
    engine.addImportPath(u":/qt/qml"_s);
    registerKitProviders(engine);
    engine.rootContext()->setContextProperty(u"issues"_s, &issues);
    engine.loadData(list);
    if (engine.rootObjects().isEmpty())
        qFatal("The list does not open.");
    FrameTimer timer(*qobject_cast<QQuickWindow *>(engine.rootObjects().first()));
    timer.settle();
    const auto scroll = timer.scroll(Steps);
    if (!table)
        table.emplace(timer.renderer());
    table->add(u"%1, %2 dropped"_s.arg(what).arg(scroll.dropped), scroll.times);
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const QGuiApplication application(argc, argv);
    if (!Fonts::load())
        qFatal("The fonts of the program are missing.");
    std::optional<FrameTable> table;
    IssueListModel issues(UserCalendar::system(),
                          QDateTime::fromMSecsSinceEpoch(1'700'600'000'000));
    issues.setIssues(manyIssues());
    const auto empty = listOf("10000", rowOf({}));
    measure(table, issues, u"empty rows"_s, empty);
    measure(table, issues, u"rows of icons"_s, listOf("10000", rowOf(icons)));
    measure(table, issues, u"rows of issues"_s, listOf("issues", rowOfIssue));
    // Repeated at the end to show how much the speed of the machine has changed during the run.
    measure(table, issues, u"empty rows"_s, empty);
    return 0;
}
