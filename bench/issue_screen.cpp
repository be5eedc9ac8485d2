// Measures the screen of an issue: walking through issues beside the list, opening windows, typing, suggestions, and an
// issue with many comments and pictures. All measurements run in one process, so that their ratios are comparable
// between machines.

#include "BenchIssues.h"
#include "BenchSite.h"
#include "EmptyWindow.h"
#include "KeyTimes.h"
#include "ProcessMemory.h"
#include "app/Interpreter.h"
#include "app/Renderer.h"
#include "app/VelmoraApp.h"
#include "async/Spawn.h"
#include "richtext/ADFNodes.h"

#include <QApplication>
#include <QEventLoop>
#include <QImage>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int Steps = 180;
constexpr int Walked = 50;
constexpr int Turns = 20;
constexpr int Issues = 300;
constexpr int Candidates = 200;
constexpr int Comments = 100;
constexpr int Pictures = 60;
constexpr qsizetype LongText = 20000;

ADFNode paragraph(int sentences)
{
    return ADF::container(
        u"paragraph",
        {ADF::text(u"Le rafraîchissement du jeton échoue après une journée complète. "_s
                       .repeated(sentences)
                       .trimmed())});
}

ADFNode picture(int number)
{
    ADFNode media{.type = u"media"_s,
                  .attrs = ADFAttributes{{u"velmoraAttachmentID"_s, QString::number(number)}}};
    return ADF::container(u"mediaSingle", {media});
}

Comment comment(int number, bool hasPicture)
{
    QList<ADFNode> blocks{paragraph(1 + number % 5)};
    if (hasPicture)
        blocks.append(picture(number));
    return {.id = QString::number(number),
            .author = sample(number % 40).assignee,
            .body = ADF::document(blocks),
            .created = sample(number).created};
}

QList<Comment> comments(int count, int pictures)
{
    QList<Comment> list;
    for (int number = 0; number < count; ++number)
        list.append(comment(number, number < pictures));
    return list;
}

/// The full record of an issue. The last issue has many pictures.
Issue inFull(const QString &key, const QUrl &file)
{
    Issue issue = sample(key.section(u'-', 1).toInt());
    issue.reporter = sample(7).assignee;
    issue.description = ADF::document({paragraph(3), paragraph(2)});
    if (key == sample(Issues - 1).key) {
        for (int number = 0; number < Pictures; ++number)
            issue.attachments.append({.id = QString::number(number),
                                      .filename = u"capture-%1.png"_s.arg(number),
                                      .mimeType = u"image/png"_s,
                                      .size = 1,
                                      .contentURL = file});
    }
    return issue;
}

/// A site whose issues have texts and comments. Every picture is the same file.
std::shared_ptr<ScriptedService> siteWithTexts(const QString &folder)
{
    const QString file = folder + u"/capture.png"_s;
    QImage image(800, 600, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    if (!image.save(file))
        qFatal("The picture cannot be written.");
    auto site = siteWith({.issues = Issues});
    QList<JiraUser> people;
    for (int number = 0; number < Candidates; ++number)
        people.append({QString::number(number), u"Noam Talvère %1"_s.arg(number), {}, {}});
    site->assignableUsersCalls.answerWith(people);
    site->searchUsersCalls.answerWith(people);
    const QUrl address = QUrl::fromLocalFile(file);
    site->issueCalls.answerBy([address](const QString &key) { return inFull(key, address); });
    site->commentsCalls.answerBy([](const QString &key) {
        const bool isLong = key == sample(Issues - 1).key;
        return isLong ? comments(Comments, Pictures) : comments(2, 0);
    });
    site->downloadCalls.answerWith(address);
    return site;
}

/// The object of a class that belongs to an item at or below another one.
QObject *partOf(QQuickItem *root, const char *kind)
{
    for (auto *part : root->children()) {
        if (part->inherits(kind))
            return part;
    }
    for (auto *child : root->childItems()) {
        if (auto *found = partOf(child, kind))
            return found;
    }
    return nullptr;
}

/// The time from a key press to the first frame of the issue in a list.
std::vector<qint64> inspections(FrameTimer &timer)
{
    std::vector<qint64> times;
    for (int turn = 0; turn < Turns; ++turn) {
        times.push_back(timer.press(Qt::Key_Space, u" "_s));
        timer.settle();
        timer.press(Qt::Key_Space, u" "_s);
        timer.settle();
    }
    return times;
}

/// Types letters and deletes them again. With a refresh, all issues arrive anew just before every fifth key.
std::vector<qint64> typing(FrameTimer &timer, AppStore *refreshed)
{
    std::vector<qint64> times;
    for (int i = 0; i < presses(); ++i) {
        const bool isLetter = i % 2 == 0;
        const auto type = [&] {
            if (refreshed != nullptr && i % 5 == 0)
                spawn(refreshed->reload());
            timer.send(isLetter ? Qt::Key_E : Qt::Key_Backspace, isLetter ? u"e"_s : u"\b"_s);
        };
        times.push_back(timer.answer(type));
    }
    return times;
}

void measureTyping(FrameTable &table, FrameTimer &timer, AppStore &store, const QString &what)
{
    table.add(what, typing(timer, nullptr));
    table.add(what + u", refreshed"_s, typing(timer, &store));
}

std::vector<qint64> suggestions(FrameTimer &timer)
{
    std::vector<qint64> times;
    for (int turn = 0; turn < Turns; ++turn) {
        times.push_back(timer.press(Qt::Key_At, u"@"_s));
        timer.press(Qt::Key_Backspace, u"\b"_s);
    }
    return times;
}

void measureEditors(FrameTable &table, VelmoraApp &velmora, FrameTimer &timer)
{
    auto &window = *velmora.mainWindow();
    editor(window, u"Titre"_s)->forceActiveFocus();
    measureTyping(table, timer, velmora.store(), u"a letter in the title"_s);

    editor(window, u"Commentaire"_s)->forceActiveFocus();
    measureTyping(table, timer, velmora.store(), u"a letter in a comment"_s);
    table.add(u"@ shows 200 candidates"_s, suggestions(timer));

    QMetaObject::invokeMethod(partOf(window.contentItem(), "DescriptionEditing"), "begin");
    timer.settle();
    auto *description = editor(window, u"Description"_s);
    QMetaObject::invokeMethod(
        description, "insert", Q_ARG(int, 0),
        Q_ARG(QString,
              u"Une ligne de la longue description, avec ses mots.\n"_s.repeated(LongText / 50)));
    description->forceActiveFocus();
    timer.settle();
    measureTyping(table, timer, velmora.store(), u"a letter in 20,000"_s);
}

/// The nanoseconds from a request for a window to its first frame.
qint64 openTime(const std::function<QQuickWindow *()> &open)
{
    const qint64 start = monotonicNow();
    QEventLoop loop;
    qint64 end = 0;
    SwapWatch watch(*open(), [] { return true; });
    QObject::connect(&watch, &SwapWatch::swapped, &loop, [&](qint64 instant, bool) {
        end = end > 0 ? end : instant;
        loop.quit();
    });
    loop.exec();
    return end - start;
}

/// Closes the window of an issue and waits until it is destroyed. The measurements run outside the program's event loop,
/// in which a deletion that was requested during an event would wait for ever.
void closeWindow(VelmoraApp &velmora, const QString &key)
{
    velmora.scenes().issueWindow(key)->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    FrameTimer(*velmora.mainWindow()).settle();
}

std::vector<qint64> issueWindows(VelmoraApp &velmora, const QString &key)
{
    std::vector<qint64> times;
    for (int turn = 0; turn < Turns; ++turn) {
        times.push_back(openTime([&] {
            velmora.scenes().showIssue(key);
            return velmora.scenes().issueWindow(key);
        }));
        FrameTimer(*velmora.scenes().issueWindow(key)).settle();
        closeWindow(velmora, key);
    }
    return times;
}

std::vector<qint64> emptyWindows()
{
    std::vector<qint64> times;
    for (int turn = 0; turn < Turns; ++turn) {
        QQmlApplicationEngine engine;
        times.push_back(openTime([&] {
            engine.loadData(emptyWindow());
            return qobject_cast<QQuickWindow *>(engine.rootObjects().first());
        }));
    }
    return times;
}

void measureWindows(VelmoraApp &velmora)
{
    std::printf("\n");
    const auto empty = emptyWindows();
    FrameTable table(u"opening windows"_s);
    table.add(u"nearly empty window"_s, empty);
    table.add(u"an issue with two comments"_s, issueWindows(velmora, sample(1).key));
    table.add(u"100 comments, 60 pictures"_s, issueWindows(velmora, sample(Issues - 1).key));
}

/// Scrolls the long issue in its own window, and compares with the list of the main window.
void measureLongIssue(VelmoraApp &velmora)
{
    const QString key = sample(Issues - 1).key;
    std::printf("\n");
    FrameTimer list(*velmora.mainWindow());
    FrameTable table(list.renderer());
    const auto rows = list.scroll(Steps);
    table.add(u"the list scrolls, %1 dropped"_s.arg(rows.dropped), rows.times);
    const qint64 before = processMemory(u"Rss"_s);
    velmora.scenes().showIssue(key);
    FrameTimer timer(*velmora.scenes().issueWindow(key));
    timer.settle();
    const auto scroll = timer.scroll(Steps);
    table.add(u"the long issue, %1 dropped"_s.arg(scroll.dropped), scroll.times);
    const qint64 open = processMemory(u"Rss"_s);
    closeWindow(velmora, key);
    std::printf("memory: %lld kB before, %lld kB more with the long issue, %lld kB more after it\n",
                qlonglong(before), qlonglong(open - before),
                qlonglong(processMemory(u"Rss"_s) - before));
}

void measureWalk(FrameTable &table, VelmoraApp &velmora, FrameTimer &timer)
{
    table.add(u"Space shows the issue"_s, inspections(timer));
    table.add(u"J in the list alone"_s, pressesOf(timer, Walked, Qt::Key_J, u"j"_s));
    velmora.store().run(Command::OpenIssue);
    timer.settle();
    table.add(u"J with the issue beside it"_s, pressesOf(timer, Walked, Qt::Key_J, u"j"_s));
}

void measureProgram(FrameTable &table)
{
    const QTemporaryDir folder;
    VelmoraApp velmora(outsideWith(siteWithTexts(folder.path()), folder.path()));
    if (!velmora.open())
        qFatal("The main window does not open.");
    FrameTimer timer(*velmora.mainWindow());
    timer.settle();
    timer.press(Qt::Key_J, u"j"_s);
    if (isMeasured(u"walk"_s))
        measureWalk(table, velmora, timer);
    velmora.store().run(Command::OpenIssue);
    timer.settle();
    if (isMeasured(u"typing"_s))
        measureEditors(table, velmora, timer);
    if (isMeasured(u"windows"_s)) {
        measureWindows(velmora);
        measureLongIssue(velmora);
    }
}

} // namespace

int main(int argc, char **argv)
{
    chooseRenderer();
    interpretAtFirst();
    QApplication::setQuitOnLastWindowClosed(false);
    const QApplication application(argc, argv);
    std::optional<FrameTable> table;
    measureEmptyWindow(table, presses());
    measureProgram(*table);
    measureEmptyWindow(table, presses());
    return 0;
}
