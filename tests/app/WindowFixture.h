#pragma once

#include "app/Spoken.h"
#include "app/VelmoraApp.h"
#include "support/FakeDesktop.h"
#include "support/FakeDesktopShortcuts.h"
#include "support/FakeKeychain.h"
#include "support/FakeStatusHost.h"
#include "support/ManualCalendar.h"
#include "support/ManualClock.h"
#include "support/ScriptedService.h"
#include "update/FakeBundles.h"
#include "update/ScriptedTransport.h"

#include <QQuickWindow>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// An issue as a list contains it: updated on 28 October 2026, without priority, assignee, labels and due date.
Issue issueWithKey(const QString &key, const QString &statusName = QStringLiteral("À faire"));

/// The whole program except its `main`, in a real window, with fake services that the test controls. The test fails on
/// any QML warning.
class WindowFixture : public testing::Test
{
protected:
    WindowFixture();
    ~WindowFixture() override;

    /// Opens the window with `demoMode` stored, so that a session begins immediately. Its service responds at once.
    void openOnDemo();
    void openSignedOut();
    /// Opens the window without waiting for the end of the launch.
    void openLaunching();
    /// Stores the credentials of an earlier run. An empty token is the state after a sign-out. Call it before opening.
    void saveCredentials(const QString &site, const QString &email, const QString &token);
    /// Sets the list that the service returns from now on. It is shown after the next reload.
    void serve(const QStringList &keys, const QString &statusName = QStringLiteral("À faire"));
    void serveIssues(const IssueList &issues);
    void reload();

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString &text);
    void click(const Spoken &thing, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void rightClick(const Spoken &thing);
    /// Whether the program has logged a warning, which fails the test at its end.
    static bool hasWarned();
    /// Waits until two frames were shown, because new items have their final position only then.
    void settle();
    /// Waits for the only element of this role and name. The test fails if it does not appear.
    Spoken await(QAccessible::Role role, const QString &nameContains);
    /// Waits until no element of this role and name is left.
    bool isGone(QAccessible::Role role, const QString &nameContains);
    /// The only element of this role and name. The test fails if there is none or more than one.
    Spoken find(QAccessible::Role role, const QString &nameContains);
    /// The keys of the issues with rows in the window, from top to bottom.
    QStringList rowsShown();

    QString lastCopied() const { return desktop->copied.value(desktop->copied.size() - 1); }

    AppStore &store() { return app->store(); }
    QQuickWindow &window() { return *app->mainWindow(); }

    QTemporaryDir folder;
    QString preferencesPath = folder.filePath(QStringLiteral("Velmora.ini"));
    ManualClock *clock = nullptr;
    ManualCalendar *calendar = nullptr;
    FakeDesktop *desktop = nullptr;
    FakeStatusHost *statusHost = nullptr;
    FakeDesktopShortcuts *shortcuts = nullptr;
    FakeKeychain *keychain = nullptr;
    /// The program as it was installed. Without a feed, nothing looks for updates by itself.
    RunningApp runningApp{.path = QStringLiteral("/home/person/Applications/Velmora.app"),
                          .version = QStringLiteral("1.3.2"),
                          .build = QStringLiteral("132"),
                          .feed = {}};
    std::shared_ptr<FakeBundles> bundles;
    ScriptedTransport *transport = nullptr;
    /// Configures the fake services just before the window opens.
    std::function<void()> beforeOpening;
    std::shared_ptr<ScriptedService> service = std::make_shared<ScriptedService>();
    /// The credentials with which sessions on sites were opened, in order.
    QList<JiraCredentials> clientsMade;
    std::unique_ptr<VelmoraApp> app;

private:
    std::map<QString, QString> secrets;

    void open();
    void answerEverything();
};
