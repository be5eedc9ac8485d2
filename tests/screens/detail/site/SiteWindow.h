#pragma once

#include "app/Spoken.h"
#include "app/VelmoraApp.h"
#include "jira/JiraClient.h"
#include "simulator/SimulatedSite.h"
#include "simulator/SiteSeed.h"
#include "support/FakeDesktop.h"
#include "support/FakeKeychain.h"
#include "support/ManualCalendar.h"
#include "support/ManualClock.h"

#include <QQuickWindow>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A comment as the site received it.
struct PostedComment
{
    QString key;
    QString text;
    bool isInternal = false;

    auto operator<=>(const PostedComment &) const = default;
};

/// The whole program except its `main`, signed in to a simulated site over HTTP, and used by real keys and clicks. What a
/// test does goes to the present window, which is at first the main window. The test fails on any QML warning.
class SiteWindow : public testing::Test
{
protected:
    /// How long a test waits for what should happen, in milliseconds: enough on a machine that is busy.
    static constexpr int patience = 30'000;

    SiteWindow();
    ~SiteWindow() override;

    /// Opens the main window and waits for the issues.
    void open();
    /// The same on the back end of the demo, whose waits end when the clock is advanced.
    void openDemo();
    void signIn();
    void signOut();

    /// Makes a window the present one, and gives it the keyboard.
    void use(QQuickWindow &window);
    QQuickWindow &window() { return *m_window; }
    QQuickWindow &mainWindow() { return *app->mainWindow(); }
    /// The window of this issue only; null if it is not open.
    QQuickWindow *ownWindow(const QString &key) { return app->scenes().issueWindow(key); }

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString &text);
    /// False if there is not exactly one such element.
    bool click(QAccessible::Role role, const QString &nameContains);
    bool has(QAccessible::Role role, const QString &nameContains);
    /// The only element of this role whose name contains a text; a default one if there is none.
    Spoken find(QAccessible::Role role, const QString &nameContains);
    /// Waits for the only element of this role and name. The test fails if it does not appear.
    Spoken await(QAccessible::Role role, const QString &nameContains);
    bool isGone(QAccessible::Role role, const QString &nameContains);
    /// So that no hint is about to be shown when the present window closes.
    void movePointerAway();
    /// Waits until two frames of the present window were shown.
    void settle();
    /// Waits until the site has responded to every write.
    bool areWritesOver();

    /// All comments that the site received, whether it kept them or not.
    QList<PostedComment> postedComments() const;
    /// The requests that change something, each as "PUT /rest/api/3/issue/AIDE-1".
    QStringList writes() const;
    AppStore &store() { return app->store(); }
    /// The keys of the issues of a project, as the site has them.
    QStringList keysOf(const QString &project) const;

    QTemporaryDir folder;
    ManualClock *clock = nullptr;
    /// The clock of the requests, whose time limits end only if a test wants it.
    ManualClock requestClock;
    ManualCalendar requestCalendar;
    FakeDesktop *desktop = nullptr;
    SimulatedSite site{SiteSeed::company(24, ManualClock().now())};
    std::unique_ptr<VelmoraApp> app;

private:
    Outside outside();
    void start();

    QQuickWindow *m_window = nullptr;
    /// The back ends, which stay until each of their requests has ended.
    QList<std::weak_ptr<JiraClient>> m_clients;
    ManualCalendar *m_calendar = nullptr;
};
