#include "screens/detail/site/SiteWindow.h"

#include "app/ExpectedWarnings.h"
#include "async/Spawn.h"
#include "demo/DemoService.h"
#include "support/FakeStatusHost.h"
#include "support/TaskResult.h"
#include "update/FakeBundles.h"
#include "update/ScriptedTransport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QStringList &warnings()
{
    static QStringList list;
    return list;
}

void keepWarnings(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg && !isExpectedWarning(message))
        warnings() += message;
}

/// The texts of a document, one line per paragraph.
QString textOf(const QJsonObject &node)
{
    if (node["type"_L1] == "text"_L1)
        return node["text"_L1].toString();
    if (node["type"_L1] == "hardBreak"_L1)
        return u"\n"_s;
    if (node["type"_L1] == "mention"_L1)
        return node["attrs"_L1]["text"_L1].toString();
    QString text;
    for (const QJsonValue child : node["content"_L1].toArray())
        text += textOf(child.toObject());
    return node["type"_L1] == "paragraph"_L1 ? text + u'\n' : text;
}

bool isMarkedInternal(const QJsonValue &properties)
{
    return std::ranges::any_of(properties.toArray(), [](const QJsonValue &property) {
        return property["key"_L1] == "sd.public.comment"_L1 &&
               property["value"_L1]["internal"_L1] == true;
    });
}

} // namespace

SiteWindow::SiteWindow()
{
    warnings().clear();
    qInstallMessageHandler(keepWarnings);
}

SiteWindow::~SiteWindow()
{
    site.recover();
    site.server().release();
    movePointerAway();
    app.reset();
    EXPECT_TRUE(QTest::qWaitFor(
        [this] {
            return std::ranges::all_of(m_clients,
                                       [](const auto &client) { return client.expired(); });
        },
        patience));
    qInstallMessageHandler(nullptr);
    EXPECT_TRUE(warnings().isEmpty()) << warnings().join(u'\n').toStdString();
}

Outside SiteWindow::outside()
{
    Outside outside;
    auto ownClock = std::make_unique<ManualClock>();
    auto ownDesktop = std::make_unique<FakeDesktop>();
    auto ownCalendar = std::make_unique<ManualCalendar>();
    auto ownKeychain = std::make_unique<FakeKeychain>();
    clock = ownClock.get();
    desktop = ownDesktop.get();
    outside.clock = std::move(ownClock);
    outside.desktop = std::move(ownDesktop);
    outside.statusHost = std::make_unique<FakeStatusHost>();
    outside.calendar = std::move(ownCalendar);
    outside.preferences = std::make_unique<Preferences>(folder.filePath(u"Velmora.ini"_s));
    outside.preferences->setText(u"ordering"_s, u"key"_s);
    outside.preferences->setText(u"jira.site"_s, site.url().toString());
    outside.preferences->setText(u"jira.email"_s, site.site().email);
    ownKeychain->items[site.url().toString()] = site.site().token;
    outside.keychain = std::move(ownKeychain);
    outside.bundles =
        std::make_shared<FakeBundles>(RunningApp{.path = u"/home/person/Velmora.app"_s,
                                                 .version = u"1.3.2"_s,
                                                 .build = u"132"_s,
                                                 .feed = {}});
    outside.makeUpdateTransport = [](Clock &) { return std::make_unique<ScriptedTransport>(); };
    outside.temporaryFolder = folder.path();
    outside.makeClient = [this](const JiraCredentials &credentials, Clock &,
                                const SystemCalendar &) {
        auto client = std::make_shared<JiraClient>(credentials, requestClock, requestCalendar,
                                                   folder.filePath(u"attachments"_s));
        m_clients += client;
        return client;
    };
    outside.makeDemo = [this](Clock &time, const SystemCalendar &system) {
        DemoSources sources = DemoSources::system();
        sources.folder = folder.filePath(u"demo"_s);
        return std::make_shared<DemoService>(time, system, sources);
    };
    return outside;
}

void SiteWindow::start()
{
    app = std::make_unique<VelmoraApp>(outside());
    ASSERT_TRUE(app->open());
    use(mainWindow());
    desktop->setPrefersReducedMotion(true);
}

void SiteWindow::openDemo()
{
    Preferences(folder.filePath(u"Velmora.ini"_s)).setFlag(u"demoMode"_s, true);
    start();
    ASSERT_TRUE(QTest::qWaitFor(
        [this] {
            clock->advance(std::chrono::milliseconds(50));
            return !store().issues().isEmpty();
        },
        patience));
}

void SiteWindow::open()
{
    start();
    ASSERT_TRUE(QTest::qWaitFor([this] { return store().phase() != AppStore::Phase::Launching; },
                                patience));
    if (store().phase() == AppStore::Phase::SignedOut)
        signIn();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !store().issues().isEmpty(); }, patience));
}

void SiteWindow::signIn()
{
    const TaskResult<void> done(
        store().connect(site.url().toString(), site.site().email, site.site().token));
    ASSERT_TRUE(QTest::qWaitFor([&] { return done.isDone(); }, patience));
    ASSERT_FALSE(done.hasFailed());
    ASSERT_TRUE(
        QTest::qWaitFor([this] { return store().phase() == AppStore::Phase::Ready; }, patience));
}

void SiteWindow::signOut()
{
    store().signOut();
    ASSERT_TRUE(QTest::qWaitFor([this] { return store().phase() == AppStore::Phase::SignedOut; },
                                patience));
}

void SiteWindow::use(QQuickWindow &window)
{
    m_window = &window;
    window.requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

void SiteWindow::press(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&window(), Qt::Key(key), modifiers);
}

void SiteWindow::type(const QString &text)
{
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, &window(), Qt::Key_unknown, QString(letter), {});
}

bool SiteWindow::has(QAccessible::Role role, const QString &nameContains)
{
    return !spokenIn(window(), role, nameContains).isEmpty();
}

Spoken SiteWindow::find(QAccessible::Role role, const QString &nameContains)
{
    const auto found = spokenIn(window(), role, nameContains);
    return found.size() == 1 ? found.first() : Spoken();
}

bool SiteWindow::click(QAccessible::Role role, const QString &nameContains)
{
    const auto found = spokenIn(window(), role, nameContains);
    if (found.size() != 1)
        return false;
    QTest::mouseClick(&window(), Qt::LeftButton, {}, found.first().box.center());
    return true;
}

Spoken SiteWindow::await(QAccessible::Role role, const QString &nameContains)
{
    const bool came = QTest::qWaitFor(
        [&] { return spokenIn(window(), role, nameContains).size() == 1; }, patience);
    EXPECT_TRUE(came) << "waited for " << nameContains.toStdString();
    settle();
    return find(role, nameContains);
}

bool SiteWindow::isGone(QAccessible::Role role, const QString &nameContains)
{
    return QTest::qWaitFor([&] { return !has(role, nameContains); }, patience);
}

void SiteWindow::movePointerAway()
{
    if (m_window)
        QTest::mouseMove(m_window, {0, 0});
}

void SiteWindow::settle()
{
    for (int frame = 0; frame < 2; ++frame) {
        QSignalSpy frames(&window(), &QQuickWindow::frameSwapped);
        window().update();
        frames.wait(1000);
    }
}

bool SiteWindow::areWritesOver()
{
    return QTest::qWaitFor([this] { return store().writes().count() == 0; }, patience);
}

QList<PostedComment> SiteWindow::postedComments() const
{
    QList<PostedComment> posted;
    for (const RawRequest &request : site.journal()) {
        const auto route = routeOf(request);
        if (!route || route->operation != SiteOperation::AddComment)
            continue;
        const QJsonObject body = QJsonDocument::fromJson(request.body).object();
        posted += {route->subject, textOf(body["body"_L1].toObject()).trimmed(),
                   isMarkedInternal(body["properties"_L1])};
    }
    return posted;
}

QStringList SiteWindow::writes() const
{
    QStringList requests;
    for (const RawRequest &request : site.journal()) {
        if (request.method != "GET" && !request.target.contains("/search"))
            requests += QString::fromUtf8(request.method + ' ' + request.target);
    }
    return requests;
}

QStringList SiteWindow::keysOf(const QString &project) const
{
    QStringList keys;
    for (const SiteIssue &issue : const_cast<SimulatedSite &>(site).site().issues()) {
        if (issue.projectKey == project)
            keys += issue.key;
    }
    return keys;
}
