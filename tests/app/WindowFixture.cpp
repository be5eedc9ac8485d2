#include "app/WindowFixture.h"

#include "app/ExpectedWarnings.h"
#include "async/Spawn.h"

#include <QSignalSpy>
#include <QTest>

#include <iostream>

using namespace Qt::StringLiterals;

namespace {

QString namesOf(const QList<Spoken> &things)
{
    QStringList names;
    for (const auto &thing : things)
        names += thing.name;
    return names.join(u" | "_s);
}

QStringList &warnings()
{
    static QStringList list;
    return list;
}

void keepWarnings(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg && !isExpectedWarning(message))
        warnings() += message;
    // The process ends before the test could tell it.
    if (type == QtFatalMsg)
        std::cerr << message.toStdString() << '\n';
}

} // namespace

Issue issueWithKey(const QString &key, const QString &statusName)
{
    Issue issue;
    issue.id = u"id-"_s + key;
    issue.key = key;
    issue.summary = u"Résumé de "_s + key;
    issue.status = IssueStatus::guessed(statusName);
    issue.projectKey = key.section(u'-', 0, 0);
    issue.created = issue.updated = QDateTime({2026, 10, 28}, {9, 0}, QTimeZone::utc());
    return issue;
}

WindowFixture::WindowFixture()
{
    warnings().clear();
    qInstallMessageHandler(keepWarnings);
}

WindowFixture::~WindowFixture()
{
    app.reset();
    service->cancelPending();
    qInstallMessageHandler(nullptr);
    EXPECT_TRUE(warnings().isEmpty()) << warnings().join(u'\n').toStdString();
}

bool WindowFixture::hasWarned()
{
    return !warnings().isEmpty();
}

void WindowFixture::open()
{
    Outside outside;
    auto ownClock = std::make_unique<ManualClock>();
    auto ownDesktop = std::make_unique<FakeDesktop>();
    clock = ownClock.get();
    desktop = ownDesktop.get();
    outside.clock = std::move(ownClock);
    outside.desktop = std::move(ownDesktop);
    auto ownStatusHost = std::make_unique<FakeStatusHost>();
    statusHost = ownStatusHost.get();
    outside.statusHost = std::move(ownStatusHost);
    auto ownShortcuts = std::make_unique<FakeDesktopShortcuts>();
    shortcuts = ownShortcuts.get();
    outside.shortcuts = std::move(ownShortcuts);
    outside.preferences = std::make_unique<Preferences>(preferencesPath);
    auto ownCalendar = std::make_unique<ManualCalendar>();
    calendar = ownCalendar.get();
    outside.calendar = std::move(ownCalendar);
    auto ownKeychain = std::make_unique<FakeKeychain>();
    keychain = ownKeychain.get();
    keychain->items = secrets;
    bundles = std::make_shared<FakeBundles>(runningApp);
    outside.bundles = bundles;
    auto ownTransport = std::make_unique<ScriptedTransport>();
    transport = ownTransport.get();
    // Called once. The function must be copyable, so it shares what it gives away.
    const auto given = std::make_shared<std::unique_ptr<UpdateTransport>>(std::move(ownTransport));
    outside.makeUpdateTransport = [given](Clock &) { return std::move(*given); };
    outside.temporaryFolder = folder.path();
    if (beforeOpening)
        beforeOpening();
    outside.keychain = std::move(ownKeychain);
    outside.makeClient = [this](const JiraCredentials &credentials, Clock &,
                                const SystemCalendar &) {
        clientsMade += credentials;
        return service;
    };
    outside.makeDemo = [this](Clock &, const SystemCalendar &) { return service; };
    app = std::make_unique<VelmoraApp>(std::move(outside));
    ASSERT_TRUE(app->open());
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
}

void WindowFixture::openOnDemo()
{
    Preferences(preferencesPath).setFlag(u"demoMode"_s, true);
    answerEverything();
    open();
}

void WindowFixture::openSignedOut()
{
    answerEverything();
    open();
    ASSERT_TRUE(QTest::qWaitFor([this] { return store().phase() != AppStore::Phase::Launching; }));
}

void WindowFixture::openLaunching()
{
    answerEverything();
    open();
}

void WindowFixture::saveCredentials(const QString &site, const QString &email, const QString &token)
{
    Preferences preferences(preferencesPath);
    preferences.setText(u"jira.site"_s, site);
    preferences.setText(u"jira.email"_s, email);
    if (!token.isEmpty())
        secrets[site] = token;
}

void WindowFixture::answerEverything()
{
    service->currentUserCalls.answerWith(JiraUser{u"u1"_s, u"Noam Talvère"_s, {}, {}});
    service->projectsCalls.answerWith({Project{u"1"_s, u"MOB"_s, u"App mobile"_s, {}, {}, false}});
    service->projectCalls.answerWith(Project{u"1"_s, u"MOB"_s, u"App mobile"_s, {}, {}, false});
    service->statusesCalls.answerWith({});
    service->prioritiesCalls.answerWith({});
    service->assignableUsersCalls.answerWith({});
    service->transitionsCalls.answerWith({});
    service->commentsCalls.answerWith({});
}

void WindowFixture::serve(const QStringList &keys, const QString &statusName)
{
    IssueList issues;
    for (const auto &key : keys)
        issues += issueWithKey(key, statusName);
    serveIssues(issues);
}

void WindowFixture::serveIssues(const IssueList &issues)
{
    service->issuesCalls.answerWith(issues);
}

void WindowFixture::reload()
{
    spawn(store().reload());
    QCoreApplication::processEvents();
}

void WindowFixture::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&window(), key, modifiers);
}

void WindowFixture::type(const QString &text)
{
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, &window(), Qt::Key_unknown, QString(letter),
                            Qt::NoModifier);
}

void WindowFixture::click(const Spoken &thing, Qt::KeyboardModifiers modifiers)
{
    QTest::mouseClick(&window(), Qt::LeftButton, modifiers, thing.box.center());
}

void WindowFixture::rightClick(const Spoken &thing)
{
    QTest::mouseClick(&window(), Qt::RightButton, {}, thing.box.center());
}

void WindowFixture::settle()
{
    for (int frame = 0; frame < 2; ++frame) {
        QSignalSpy frames(&window(), &QQuickWindow::frameSwapped);
        window().update();
        frames.wait(1000);
    }
}

Spoken WindowFixture::await(QAccessible::Role role, const QString &nameContains)
{
    const bool came =
        QTest::qWaitFor([&] { return spokenIn(window(), role, nameContains).size() == 1; });
    EXPECT_TRUE(came) << "waited for " << nameContains.toStdString();
    settle();
    return came ? find(role, nameContains) : Spoken();
}

bool WindowFixture::isGone(QAccessible::Role role, const QString &nameContains)
{
    return QTest::qWaitFor([&] { return spokenIn(window(), role, nameContains).isEmpty(); });
}

Spoken WindowFixture::find(QAccessible::Role role, const QString &nameContains)
{
    const auto found = spokenIn(window(), role, nameContains);
    EXPECT_EQ(found.size(), 1) << "things named like " << nameContains.toStdString() << ", of "
                               << namesOf(spokenIn(window(), role, {})).toStdString();
    return found.isEmpty() ? Spoken() : found.first();
}

QStringList WindowFixture::rowsShown()
{
    auto rows = spokenIn(window(), QAccessible::ListItem, u"Résumé"_s);
    std::ranges::sort(rows, {}, [](const Spoken &row) { return row.box.top(); });
    QStringList keys;
    for (const auto &row : rows)
        keys += row.name.section(u',', 0, 0);
    return keys;
}
