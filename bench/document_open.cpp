// Measures how long documents take to open: from the creation of a window to the swap of its first frame, compared with
// the same window with one paragraph, and the memory that the blocks use. All windows are in one process, and the
// subjects alternate. At the end, the documents are scrolled and compared with rows of text.

#include "FrameTable.h"
#include "FrameTimer.h"
#include "ProcessMemory.h"
#include "SwapWatch.h"
#include "richtext/ADFNodes.h"
#include "screens/documents/view/DocumentReader.h"
#include "screens/kit/KitProviders.h"
#include "screens/theme/Fonts.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QTimer>
#include <QtQml/qqmlextensionplugin.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

Q_IMPORT_QML_PLUGIN(Velmora_ModelPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_ThemePlugin)
Q_IMPORT_QML_PLUGIN(Velmora_KitPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_DocumentsPlugin)

using namespace Qt::StringLiterals;

namespace {

constexpr int Rounds = 15;
constexpr int Steps = 180;

ADFNode paragraph(int sentences)
{
    return ADF::container(
        u"paragraph",
        {ADF::text(u"Le rafraîchissement du jeton échoue après une journée complète. "_s.repeated(
            sentences))});
}

ADFNode table()
{
    QList<ADFNode> rows;
    for (int row = 0; row < 20; ++row) {
        QList<ADFNode> cells;
        for (int column = 0; column < 4; ++column)
            cells.append(ADF::container(
                row == 0 ? u"tableHeader" : u"tableCell",
                {ADF::container(u"paragraph", {ADF::text(u"cellule %1"_s.arg(row))})}));
        rows.append(ADF::container(u"tableRow", cells));
    }
    return ADF::container(u"table", rows);
}

ADFNode code()
{
    return ADF::container(
        u"codeBlock", {ADF::text(u"let jeton = session.jeton // un commentaire\n"_s.repeated(12))});
}

/// A document of so many blocks, of which three are tables, ten pictures and five code.
ADFNode document(int blocks)
{
    QList<ADFNode> nodes;
    for (int i = 0; i < blocks; ++i) {
        if (blocks > 1 && i % (blocks / 3) == 4)
            nodes.append(table());
        else if (blocks > 1 && i % (blocks / 10) == 9)
            nodes.append(ADF::container(u"mediaSingle", {ADF::plain(u"media")}));
        else if (blocks > 1 && i % (blocks / 5) == 14)
            nodes.append(code());
        else
            nodes.append(paragraph(blocks > 1 ? 3 + i % 7 : 3));
    }
    return ADF::document(nodes);
}

struct Subject
{
    const char *name;
    ADFNode node;
    /// The number of views below each other, each with this document.
    int views = 1;
    std::vector<qint64> times = {};
};

const char *const page = R"(import QtQuick
import Velmora.Documents
import Velmora.Kit
import Velmora.Theme
Window {
    id: window
    required property int views
    width: 560; height: 840; visible: true; color: Theme.content
    Flickable {
        anchors.fill: parent
        contentHeight: column.height
        Column {
            id: column
            spacing: 12
            Repeater {
                model: window.views
                ADFContentView {
                    width: 500
                    height: implicitHeight
                    mediaDelegate: Component { Rectangle { required property mediaBlock block; implicitHeight: 200; color: "gainsboro" } }
                }
            }
        }
    }
}
)";

/// The same window with rows of text, of which every other one is shaded.
const char *const rows = R"(import QtQuick
import Velmora.Kit
import Velmora.Theme
Window {
    width: 560; height: 840; visible: true; color: Theme.content
    ListView {
        id: list
        anchors.fill: parent
        model: 10000
        delegate: Item {
            id: row
            required property int index
            width: list.width; height: 38
            Rectangle { anchors.fill: parent; visible: row.index % 2 === 0; color: Theme.hoverFill }
            AppText { text: "Le rafraîchissement du jeton échoue après une journée complète. " + row.index }
        }
    }
}
)";

/// The documents below an item.
QList<DocumentReader *> documentsBelow(QQuickItem *item)
{
    if (auto *reader = qobject_cast<DocumentReader *>(item))
        return {reader};
    QList<DocumentReader *> found;
    for (auto *child : item->childItems())
        found += documentsBelow(child);
    return found;
}

QList<DocumentReader *> documentsIn(QObject *window)
{
    return documentsBelow(qobject_cast<QQuickWindow *>(window)->contentItem());
}

std::unique_ptr<QObject> opened(QQmlComponent &component, const Subject &subject)
{
    std::unique_ptr<QObject> made(
        component.createWithInitialProperties({{u"views"_s, subject.views}}));
    if (!made) {
        std::fprintf(stderr, "%s\n", qPrintable(component.errorString()));
        std::exit(1);
    }
    for (auto *view : documentsIn(made.get()))
        view->setNode(subject.node);
    return made;
}

/// The nanoseconds until the first frame of a new window.
qint64 openTime(QQmlComponent &component, const Subject &subject)
{
    const qint64 start = monotonicNow();
    const auto made = opened(component, subject);
    qint64 end = 0;
    QEventLoop loop;
    SwapWatch watch(*qobject_cast<QQuickWindow *>(made.get()), [] { return true; });
    QObject::connect(&watch, &SwapWatch::swapped, &loop, [&](qint64 instant, bool) {
        end = end > 0 ? end : instant;
        loop.quit();
    });
    loop.exec();
    return end - start;
}

/// Runs the event loop until all documents of a window are laid out.
void finish(QObject &window)
{
    QEventLoop loop;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (std::ranges::all_of(documentsIn(&window), &DocumentReader::isExact))
            loop.quit();
    });
    constexpr int interval = 50;
    poll.start(interval);
    loop.exec();
}

/// The memory of windows that stay open, in kilobytes for each.
double memoryOf(QQmlComponent &component, const Subject &subject,
                std::vector<std::unique_ptr<QObject>> &open)
{
    constexpr int windows = 4;
    const qint64 before = processMemory(u"Rss"_s);
    for (int i = 0; i < windows; ++i) {
        open.push_back(opened(component, subject));
        finish(*open.back());
    }
    return double(processMemory(u"Rss"_s) - before) / windows;
}

/// Measured before anything else, so that no freed memory is used again.
void printMemory(QQmlComponent &component, const std::vector<Subject> &subjects)
{
    std::vector<std::unique_ptr<QObject>> open;
    memoryOf(component, subjects[0], open);
    const double base = memoryOf(component, subjects[0], open);
    std::printf("\nmemory above that of one paragraph, when all heights are exact\n");
    for (size_t i = 1; i < subjects.size(); ++i) {
        const double memory = memoryOf(component, subjects[i], open) - base;
        const auto blocks = double(subjects[i].node.content->size() * subjects[i].views);
        std::printf("%-28s %8.0f kB, %6.0f kB for each 100 blocks\n", subjects[i].name, memory,
                    memory * 100 / blocks);
    }
}

void addScroll(FrameTable &table, QObject &window, const QString &what)
{
    FrameTimer timer(*qobject_cast<QQuickWindow *>(&window));
    const auto scroll = timer.scroll(Steps);
    table.add(u"%1, %2 dropped"_s.arg(what).arg(scroll.dropped), scroll.times);
}

/// The rows are scrolled before and after the documents, which shows how much the speed of the machine has changed.
void printScrolls(QQmlEngine &engine, QQmlComponent &component,
                  const std::vector<Subject> &subjects)
{
    std::printf("\n");
    FrameTable table(u"scrolling"_s);
    QQmlComponent list(&engine);
    list.setData(rows, QUrl(u"qrc:/rows.qml"_s));
    const std::unique_ptr<QObject> plain(list.create());
    if (!plain)
        qFatal("%s", qPrintable(list.errorString()));
    addScroll(table, *plain, u"rows of text"_s);
    for (size_t i = 1; i < subjects.size(); ++i)
        addScroll(table, *opened(component, subjects[i]), QString::fromLatin1(subjects[i].name));
    addScroll(table, *plain, u"rows of text"_s);
}

void printOpening(QQmlComponent &component, std::vector<Subject> &subjects)
{
    openTime(component, subjects.front());
    for (int round = 0; round < Rounds; ++round) {
        for (auto &subject : subjects)
            subject.times.push_back(openTime(component, subject));
    }
    std::printf("\ndocuments, from the creation of a window to its first frame\n");
    std::printf("%-28s %10s %8s\n", "", "median ms", "ratio");
    double base = 0;
    for (auto &subject : subjects) {
        std::ranges::sort(subject.times);
        const double median = double(subject.times[subject.times.size() / 2]) / 1e6;
        base = base > 0 ? base : median;
        std::printf("%-28s %10.1f %8.2f\n", subject.name, median, median / base);
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    if (!Fonts::load())
        return 1;
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QQmlEngine engine;
    engine.addImportPath(u":/qt/qml"_s);
    registerKitProviders(engine);
    QQmlComponent component(&engine);
    component.setData(page, QUrl(u"qrc:/document_open.qml"_s));
    std::vector<Subject> subjects{{"one paragraph", document(1)},
                                  {"300 blocks", document(300)},
                                  {"2,000 blocks", document(2000)},
                                  {"100 comments", document(1), 100}};
    printMemory(component, subjects);
    printOpening(component, subjects);
    printScrolls(engine, component, subjects);
    return 0;
}
