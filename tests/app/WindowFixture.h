#pragma once

#include "app/Spoken.h"
#include "app/VelmoraApp.h"
#include "support/FakeDesktop.h"
#include "support/FakeKeychain.h"
#include "support/FakeStatusHost.h"
#include "support/ManualCalendar.h"
#include "support/ManualClock.h"
#include "support/ScriptedService.h"

#include <QQuickWindow>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// An issue as a list has it: updated on 28 October 2026, without priority, assignee, labels and due date.
Issue issueWithKey(const QString &key, const QString &statusName = QStringLiteral("À faire"));

/// The whole program but its entry, in a real window, on a world that the test sets. Fails on any warning of QML.
class WindowFixture : public testing::Test
{
protected:
    WindowFixture();
    ~WindowFixture() override;

    /// Opens the window; with `demoMode` stored, straight on a session whose service answers at once.
    void openOnDemo();
    void openSignedOut();
    /// What an earlier start left behind; without a token as after a sign-out. To be called before opening.
    void saveCredentials(const QString &site, const QString &email, const QString &token);
    /// The list that the service gives from now on; shown after the next reload.
    void serve(const QStringList &keys, const QString &statusName = QStringLiteral("À faire"));
    void serveIssues(const IssueList &issues);
    void reload();

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString &text);
    void click(const Spoken &thing, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void rightClick(const Spoken &thing);
    /// Waits until two frames were shown: what is new stands at its place only then.
    void settle();
    /// Waits for the only thing of this role and name; the test fails when it does not come.
    Spoken await(QAccessible::Role role, const QString &nameContains);
    /// Waits until nothing of this role and name is left.
    bool isGone(QAccessible::Role role, const QString &nameContains);
    /// The only thing of this role and name; the test fails when there is none, or more than one.
    Spoken find(QAccessible::Role role, const QString &nameContains);
    /// The keys of the issues whose rows are in the window, from top to bottom.
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
    FakeKeychain *keychain = nullptr;
    /// Scripts the world that the window is about to open on.
    std::function<void()> beforeOpening;
    std::shared_ptr<ScriptedService> service = std::make_shared<ScriptedService>();
    /// The credentials that sessions on sites were opened with, in order.
    QList<JiraCredentials> clientsMade;
    std::unique_ptr<VelmoraApp> app;

private:
    std::map<QString, QString> secrets;

    void open();
    void answerEverything();
};
