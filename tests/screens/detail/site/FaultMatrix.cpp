#include "screens/detail/site/FaultMatrix.h"

#include "simulator/SiteRest.h"
#include "support/TaskResult.h"

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMimeData>
#include <QTest>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Why the site refuses.
const auto Words = u"Le champ est verrouillé."_s;
const auto NewTitle = u"Titre de Nora"_s;

QJsonObject document(const QString &text)
{
    const QJsonObject words{{u"type"_s, u"text"_s}, {u"text"_s, text}};
    const QJsonObject line{{u"type"_s, u"paragraph"_s}, {u"content"_s, QJsonArray{words}}};
    return {{u"type"_s, u"doc"_s}, {u"version"_s, 1}, {u"content"_s, QJsonArray{line}}};
}

RawAnswer refusal()
{
    const QJsonObject body{{u"errorMessages"_s, QJsonArray{Words}}, {u"errors"_s, QJsonObject()}};
    return RawAnswer::json(QJsonDocument(body).toJson(), 400);
}

bool isWrite(const RawRequest &request)
{
    return request.method != "GET" && !request.target.contains("/search");
}

} // namespace

void PrintTo(const Place &place, std::ostream *out)
{
    *out << place.name.toStdString() << ": " << place.text.toStdString() << " at " << place.caret;
}

FaultMatrix::FaultMatrix()
{
    SiteIssue &issue = siteIssue();
    issue.comments.clear();
    issue.attachments.clear();
    issue.due.reset();
    issue.description = document(u"Avant"_s);
    site.site().comment(issue, {.body = document(u"Bonjour"_s)});
    open();
    if (isSheet())
        return;
    openIssue();
    EXPECT_EQ(commentsShown(), 1);
}

void FaultMatrix::openIssue()
{
    Q_EMIT store().openWindowRequested(key);
    ASSERT_TRUE(QTest::qWaitFor([&] { return ownWindow(key) != nullptr; }, patience));
    use(*ownWindow(key));
    await(QAccessible::EditableText, u"Commentaire"_s);
}

void FaultMatrix::openSheet()
{
    store().run(Command::NewIssue);
    await(QAccessible::EditableText, u"Titre du ticket"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return place().name == u"Titre du ticket"; }, patience));
}

qsizetype FaultMatrix::commentsShown()
{
    return spokenIn(window(), QAccessible::ListItem, u" a commenté"_s).size();
}

Place FaultMatrix::place()
{
    QQuickItem *const item = window().activeFocusItem();
    auto *const known = item ? QAccessible::queryAccessibleInterface(item) : nullptr;
    if (!known)
        return {};
    return {item, known->text(QAccessible::Name), known->text(QAccessible::Value),
            item->property("cursorPosition").toInt()};
}

void FaultMatrix::typeWithCaretInside(const QString &text)
{
    type(text);
    for (int i = 0; i < 4; ++i)
        press(Qt::Key_Left);
}

void FaultMatrix::begin()
{
    switch (activity) {
    case Activity::Title:
        ASSERT_TRUE(click(QAccessible::EditableText, u"Titre"_s));
        press(Qt::Key_A, Qt::ControlModifier);
        return typeWithCaretInside(typed);
    case Activity::Description:
        ASSERT_TRUE(pressAction(window(), QAccessible::Button, u"la description"_s));
        await(QAccessible::EditableText, u"Description"_s);
        return typeWithCaretInside(typed);
    case Activity::Mention:
        ASSERT_TRUE(click(QAccessible::EditableText, u"Commentaire"_s));
        type(typed + u" @"_s);
        await(QAccessible::Dialog, u"Mentions"_s);
        press(Qt::Key_Down);
        mentioned = suggested();
        ASSERT_FALSE(mentioned.isEmpty());
        return;
    case Activity::DueDate:
        ASSERT_TRUE(pressAction(window(), QAccessible::Button, u"Échéance"_s));
        await(QAccessible::Grouping, u"Calendrier"_s);
        return press(Qt::Key_Right);
    case Activity::NewIssue:
        openSheet();
        return typeWithCaretInside(typed);
    case Activity::Comment:
        ASSERT_TRUE(click(QAccessible::EditableText, u"Commentaire"_s));
        typeWithCaretInside(typed);
        return beginWrite();
    case Activity::Upload:
        ASSERT_TRUE(click(QAccessible::EditableText, u"Commentaire"_s));
        typeWithCaretInside(typed);
        return beginWrite();
    case Activity::Creation:
        openSheet();
        typeWithCaretInside(typed);
        return beginWrite();
    }
}

void FaultMatrix::beginWrite()
{
    site.server().holdBack(isWrite);
    const auto before = writes().size();
    write();
    ASSERT_TRUE(QTest::qWaitFor([&] { return writes().size() == before + 1; }, patience));
}

void FaultMatrix::write()
{
    if (activity != Activity::Upload)
        return press(Qt::Key_Return, Qt::ControlModifier);
    QFile file(folder.filePath(u"notes.txt"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("Notes");
    file.close();
    auto files = std::make_unique<QMimeData>();
    files->setUrls({QUrl::fromLocalFile(file.fileName())});
    QGuiApplication::clipboard()->setMimeData(files.release());
    press(Qt::Key_V, Qt::ControlModifier);
}

QString FaultMatrix::suggested()
{
    for (const Spoken &row : spokenIn(window(), QAccessible::ListItem)) {
        if (row.state.focused)
            return row.name;
    }
    return {};
}

void FaultMatrix::finish()
{
    site.server().release();
    site.recover();
    switch (activity) {
    case Activity::Title:
        return press(Qt::Key_Return);
    case Activity::Description:
        return press(Qt::Key_Return, Qt::ControlModifier);
    case Activity::Mention:
        press(Qt::Key_Return);
        EXPECT_TRUE(place().text.contains(u'@' + mentioned.section(u',', 0, 0)))
            << place().text.toStdString() << mentioned.toStdString();
        return press(Qt::Key_Return, Qt::ControlModifier);
    case Activity::DueDate:
        ASSERT_TRUE(click(QAccessible::Button, u"Valider"_s));
        return;
    case Activity::NewIssue:
        return press(Qt::Key_Return, Qt::ControlModifier);
    case Activity::Comment:
    case Activity::Upload:
    case Activity::Creation:
        if (isWriteRefused())
            write();
    }
}

bool FaultMatrix::isWriteRefused() const
{
    return isWaiting() && (fault == Fault::Refusal || fault == Fault::LostConnection);
}

void FaultMatrix::meetFault()
{
    switch (fault) {
    case Fault::Change:
        return meetChange();
    case Fault::Refusal:
        return meetRefusal();
    case Fault::OtherSession:
        return meetOtherSession();
    case Fault::LostConnection:
        return meetLostConnection();
    case Fault::SlowSite:
        return meetSlowSite();
    }
}

void FaultMatrix::meetChange()
{
    if (isWaiting()) {
        const RawRequest waiting = *std::ranges::find_if(site.journal(), isWrite);
        site.answer(routeOf(waiting)->operation, answerOf(site.site(), waiting));
    }
    site.site().change(siteIssue(), u"summary"_s, siteIssue().summary, NewTitle);
    siteIssue().summary = NewTitle;
    siteIssue().description = document(u"Description de Nora"_s);
    // The first of the suggestions is no longer one of the first.
    siteIssue().assignee.clear();
    site.site().comment(siteIssue(), {.body = document(u"Commentaire de Nora"_s)});
    siteIssue().comments.last().author = site.site().users.last().accountId;
    loadEverything();
    EXPECT_EQ((*store().issue(key))->summary, NewTitle);
    if (isSheet())
        return;
    EXPECT_EQ(commentsShown(), siteIssue().comments.size());
}

void FaultMatrix::loadEverything()
{
    const TaskResult<void> list(store().reload());
    const TaskResult<void> issue(store().loadDetails(key));
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            // A request on a lost connection may end with its time limit only.
            if (fault == Fault::LostConnection)
                requestClock.advance(1s);
            return list.isDone() && issue.isDone();
        },
        patience));
    settle();
}

void FaultMatrix::meetRefusal()
{
    if (isWaiting()) {
        site.answer(routeOf(*std::ranges::find_if(site.journal(), isWrite))->operation, refusal());
        site.server().release();
    } else {
        site.answer(SiteOperation::Assign, refusal());
        store().assign({isSheet() ? store().issues().first()->key : key},
                       JiraUser{site.site().users.last().accountId, u"Nora"_s, {}, {}});
    }
    await(QAccessible::AlertMessage, Words);
    EXPECT_TRUE(areWritesOver());
}

void FaultMatrix::meetOtherSession()
{
    signOut();
    site.server().release();
    use(mainWindow());
    signIn();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !store().issues().isEmpty(); }, patience));
}

void FaultMatrix::meetLostConnection()
{
    site.server().meetConnections(RawAnswer::Ending::Reset);
    site.server().dropConnections(RawAnswer::Ending::Reset);
    loadEverything();
    EXPECT_TRUE(areWritesOver());
    site.server().meetConnections(RawAnswer::Ending::KeepOpen);
}

void FaultMatrix::meetSlowSite()
{
    site.server().holdBack([](const RawRequest &) { return true; });
    store().refresh();
    const TaskResult<void> issue(store().loadDetails(key));
    clock->advance(1500ms);
    requestClock.advance(1500ms);
    settle();
    EXPECT_FALSE(issue.isDone());
}
