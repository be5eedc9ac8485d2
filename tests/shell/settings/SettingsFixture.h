#pragma once

#include "app/WindowFixture.h"

/// The settings in a window beside the main window, operated with real keys and clicks.
class SettingsFixture : public WindowFixture
{
protected:
    QQuickWindow &settings() { return *app->scenes().settingsWindow(); }

    /// Stores the tab that the settings open with. Call it before opening the program.
    void choose(const QString &tab);
    void showSettings();
    void pressHere(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void typeHere(const QString &text);
    /// Waits for the only element of this role and name, and clicks its centre.
    void clickHere(QAccessible::Role role, const QString &nameContains);
    /// Waits for the only element of this role and name. The test fails if it does not appear.
    Spoken here(QAccessible::Role role, const QString &nameContains);
    bool isHere(QAccessible::Role role, const QString &nameContains);
    /// Whether the control with this accessible name is enabled. (Qt 6.4 does not report that to screen readers.)
    bool isEnabledHere(const QString &name);
    /// Waits until no element of this role and name is left.
    bool isGoneHere(QAccessible::Role role, const QString &nameContains);
    /// Waits until two frames of the settings were shown.
    void settleHere();
    /// The name of the element with the keyboard focus; empty if no named element has it.
    QString focusedHere();
    /// Presses Tab until an element with this role and name has the focus. False if there is none.
    bool tabTo(QAccessible::Role role, const QString &nameContains);
    /// A value of the singleton `Theme`.
    QVariant token(const char *name);
};
