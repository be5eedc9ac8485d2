#include "app/WindowFixture.h"
#include "richtext/ADFNodes.h"
#include "support/ObjectCensus.h"

#include <QQmlEngine>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Longer than any toast stays.
constexpr auto LongestToast = 30s;

ADFNode paragraph(const QString &text)
{
    return ADF::document({ADF::container(u"paragraph", {ADF::text(text)})});
}

/// What the program holds while nothing happens.
struct Held
{
    QMap<QByteArray, int> objectsByClass;
    /// Timers of Qt and of the clock.
    int timers = 0;
    qsizetype windows = 0;
};

/// What there is more of than before, such as "3 QTimer"; empty if nothing was left. There may be less, because Qt
/// forgets unused pictures after a time.
std::string leftSince(const Held &before, const Held &after)
{
    QStringList left;
    const auto compare = [&left](const QString &name, qsizetype more) {
        if (more > 0)
            left += u"%1 %2"_s.arg(more).arg(name);
    };
    for (const auto &[name, count] : after.objectsByClass.asKeyValueRange())
        compare(QString::fromLatin1(name), count - before.objectsByClass.value(name));
    compare(u"timers"_s, after.timers - before.timers);
    compare(u"windows"_s, after.windows - before.windows);
    return left.join(u", "_s).toStdString();
}

/// A program that is used for long. Each test does the same again and again, and claims that nothing of it stays.
class Growth : public WindowFixture
{
protected:
    Growth()
    {
        service->issueCalls.answerBy([this](const QString &key) {
            Issue issue = **store().issue(key);
            issue.description = paragraph(u"La description de "_s + key);
            return issue;
        });
        serve(keys());
        openOnDemo();
        service->commentsCalls.answerBy([](const QString &key) {
            return QList<Comment>{{.id = u"1"_s, .body = paragraph(u"Un mot sur "_s + key)}};
        });
        desktop->setPrefersReducedMotion(true);
        settle();
    }

    void openIssueBeside()
    {
        const auto before = store().focusedKey();
        press(Qt::Key_Down);
        if (!store().showInspector())
            press(Qt::Key_Space);
        ASSERT_NE(store().focusedKey(), before);
        ASSERT_EQ(store().inspectorKey(), store().focusedKey());
        settle();
    }
    /// Opens ten issues of the list one after the other, and closes the last one.
    void walk()
    {
        for (int opening = 0; opening < 10; ++opening)
            openIssueBeside();
        press(Qt::Key_Space);
        ASSERT_FALSE(store().showInspector());
        press(Qt::Key_Home);
    }
    /// Two refreshes: the first moves every issue into another group, the second back.
    void refreshTwice()
    {
        for (const auto &status : {u"En cours"_s, u"À faire"_s}) {
            serve(keys(), status);
            store().run(Command::Reload);
            settle();
            ASSERT_EQ((*store().issue(keys().first()))->status.name(), status);
        }
    }
    void openWindow()
    {
        const QString key = keys().first();
        Q_EMIT store().openWindowRequested(key);
        const QPointer<QQuickWindow> issue = app->scenes().issueWindow(key);
        ASSERT_TRUE(QTest::qWaitFor([&] {
            return !spokenIn(*issue, QAccessible::Paragraph, u"Un mot sur "_s + key).isEmpty();
        }));
        issue->close();
        ASSERT_TRUE(QTest::qWaitFor([&] { return issue.isNull(); }));
    }
    Held held()
    {
        clock->advance(LongestToast);
        settle();
        // It deletes objects at some time only.
        qmlEngine(&window())->collectGarbage();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return {.objectsByClass = m_census.countsByClass(),
                .timers = m_census.timers() + clock->pending(),
                .windows = QGuiApplication::topLevelWindows().size()};
    }

private:
    static QStringList keys()
    {
        return {u"MOB-1"_s, u"MOB-2"_s, u"MOB-3"_s, u"MOB-4"_s,  u"MOB-5"_s, u"MOB-6"_s,
                u"MOB-7"_s, u"MOB-8"_s, u"MOB-9"_s, u"MOB-10"_s, u"MOB-11"_s};
    }

    ObjectCensus m_census;
};

} // namespace

TEST_F(Growth, FiftyIssuesOpenedBesideTheListLeaveNothing)
{
    walk();
    const Held before = held();
    for (int turn = 0; turn < 5; ++turn)
        walk();
    EXPECT_EQ(leftSince(before, held()), "");
}

TEST_F(Growth, TenRefreshesLeaveNothing)
{
    refreshTwice();
    const Held before = held();
    for (int turn = 0; turn < 5; ++turn)
        refreshTwice();
    EXPECT_EQ(leftSince(before, held()), "");
}

TEST_F(Growth, FiveClosedWindowsOfIssuesLeaveNothing)
{
    openWindow();
    const Held before = held();
    for (int turn = 0; turn < 5; ++turn)
        openWindow();
    EXPECT_EQ(leftSince(before, held()), "");
}
