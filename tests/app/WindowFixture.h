#pragma once

#include "app/Spoken.h"
#include "app/VelmoraApp.h"
#include "support/FakeDesktop.h"
#include "support/ManualClock.h"
#include "support/ScriptedService.h"

#include <QQuickWindow>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// The whole program but its entry, in a real window, on a world that the test sets. Fails on any warning of QML.
class WindowFixture : public testing::Test
{
protected:
    WindowFixture();
    ~WindowFixture() override;

    /// Opens the window; with `demoMode` stored, straight on a session whose service answers at once.
    void openOnDemo();
    void openSignedOut();
    /// The list that the service gives from now on; shown after the next reload.
    void serve(const QStringList &keys, const QString &statusName = QStringLiteral("À faire"));
    void reload();

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString &text);
    void click(const Spoken &thing, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// The only thing of this role and name; the test fails when there is none, or more than one.
    Spoken find(QAccessible::Role role, const QString &nameContains);
    /// The keys of the issues whose rows are in the window, from top to bottom.
    QStringList rowsShown();

    AppStore &store() { return app->store(); }
    QQuickWindow &window() { return *app->mainWindow(); }

    QTemporaryDir folder;
    QString preferencesPath = folder.filePath(QStringLiteral("Velmora.ini"));
    ManualClock *clock = nullptr;
    FakeDesktop *desktop = nullptr;
    std::shared_ptr<ScriptedService> service = std::make_shared<ScriptedService>();
    std::unique_ptr<VelmoraApp> app;

private:
    void open();
    void answerEverything();
};
