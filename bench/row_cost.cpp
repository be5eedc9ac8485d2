// Measures the creation of the rows of the list and of the cards of the board: the time for each and the number of its
// objects, compared with a row that consists of one line of text. All rows are created one after the other in one
// process.

#include "BenchClock.h"
#include "BenchIssues.h"
#include "screens/kit/KitProviders.h"
#include "screens/theme/Fonts.h"
#include "state/models/IssueListModel.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/qqmlextensionplugin.h>

#include <cstdio>
#include <ctime>

Q_IMPORT_QML_PLUGIN(Velmora_ModelPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_ThemePlugin)
Q_IMPORT_QML_PLUGIN(Velmora_KitPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_StatePlugin)
Q_IMPORT_QML_PLUGIN(Velmora_OptionsPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_IssuesPlugin)

using namespace Qt::StringLiterals;

namespace {

constexpr int Rounds = 60;

struct Subject
{
    const char *name;
    QByteArray delegate;
};

/// A window with a list that creates all rows of its model at once.
QByteArray listOf(const QByteArray &delegate)
{
    return R"(import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Model
import Velmora.State
import Velmora.Theme
Window {
    RowLook { id: rowLook; keyWidth: 60 }
    CardLook { id: cardLook }
    width: 1076; height: 840; visible: true; color: Theme.content
    ListView {
        id: list
        objectName: "list"
        width: 1076; height: 40000
        cacheBuffer: 0
        delegate: )" +
           delegate + R"(
    }
})";
}

const std::array<Subject, 3> subjects{{
    {"a line of text", R"(Item {
        required property issue issue
        width: list.width; height: 38
        Text { anchors.centerIn: parent; text: "WEB-203" }
    })"},
    {"a row of the list", R"(IssueRow {
        width: list.width; height: 38; style: rowLook; isSelecting: false
    })"},
    {"a card of the board", R"(BoardCard { width: 280; style: cardLook })"},
}};

/// Typical issues: they have a type and two labels, and every third has a due date.
IssueList issues(int count)
{
    IssueList list;
    for (int number = 0; number < count; ++number) {
        auto issue = sample(number);
        issue.type = IssueType(u"1"_s, u"Bug"_s);
        if (number % 3 == 0)
            issue.dueDate = QDate(2023, 11, 20);
        list.append(issue);
    }
    return list;
}

/// The processor time of this thread in nanoseconds, which excludes the work of other programs.
qint64 computed()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

qsizetype objectsIn(QQuickItem &item)
{
    qsizetype count = 0;
    for (auto *child : item.childItems())
        count += 1 + objectsIn(*child);
    for (const auto *child : item.children())
        count += !child->inherits("QQuickItem");
    return count;
}

/// The number of row items in the list, independent of the size of the model.
qsizetype rowsIn(const QQuickItem &list)
{
    const auto rows = list.property("contentItem").value<QQuickItem *>()->childItems();
    return std::ranges::count_if(rows, [](const QQuickItem *row) {
        return row->isVisible() && row->property("issue").isValid();
    });
}

struct Cost
{
    qint64 nanoseconds = 0;
    qsizetype objects = 0;
};

Cost medianCost(QQuickItem &list, IssueListModel &model)
{
    std::vector<qint64> times;
    qsizetype objects = 0;
    for (int round = 0; round < Rounds; ++round) {
        const auto start = computed();
        list.setProperty("model", QVariant::fromValue(&model));
        QMetaObject::invokeMethod(&list, "forceLayout");
        times.push_back((computed() - start) / model.rowCount());
        if (const auto made = rowsIn(list); made != model.rowCount())
            qFatal("%d of %d rows were made.", int(made), model.rowCount());
        objects = objectsIn(list);
        list.setProperty("model", QVariant());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        objects -= objectsIn(list);
    }
    std::sort(times.begin(), times.end());
    return {times[times.size() / 2], objects / model.rowCount()};
}

Cost measured(const Subject &subject, IssueListModel &model)
{
    QQmlApplicationEngine engine;
    engine.addImportPath(u":/qt/qml"_s);
    registerKitProviders(engine);
    engine.loadData(listOf(subject.delegate));
    if (engine.rootObjects().isEmpty())
        qFatal("The list does not open.");
    return medianCost(*engine.rootObjects().first()->findChild<QQuickItem *>(u"list"_s), model);
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const QGuiApplication application(argc, argv);
    if (!Fonts::load())
        qFatal("The fonts of the program are missing.");
    IssueListModel model(UserCalendar::system(), QDateTime::fromMSecsSinceEpoch(1'700'600'000'000));
    model.setIssues(issues(QGuiApplication::arguments().value(1, u"40"_s).toInt()));
    std::printf("%-24s %12s %8s %9s\n", "", "us to make", "ratio", "objects");
    double floor = 0;
    for (const auto &subject : subjects) {
        const auto cost = measured(subject, model);
        floor = floor > 0 ? floor : double(cost.nanoseconds);
        std::printf("%-24s %12.1f %8.1f %9lld\n", subject.name, double(cost.nanoseconds) / 1000,
                    double(cost.nanoseconds) / floor, static_cast<long long>(cost.objects));
    }
    return 0;
}
