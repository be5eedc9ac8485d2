#pragma once

#include "commands/ShortcutReference.h"
#include "platform/Preferences.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// One tab of the settings.
class SettingsTab
{
    Q_GADGET
    QML_VALUE_TYPE(settingsTab)
    Q_PROPERTY(QString value MEMBER value CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol CONSTANT FINAL)

public:
    /// As it is stored.
    QString value;
    QString title;
    QString symbol;

    bool operator==(const SettingsTab &) const = default;
};

/// The tabs of the settings that have something to show, and which one is chosen, which outlives the process.
class SettingsTabs : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made with the windows")
    Q_PROPERTY(QList<SettingsTab> tabs READ tabs CONSTANT FINAL)
    Q_PROPERTY(QString tab READ tab WRITE setTab NOTIFY tabChanged FINAL)
    Q_PROPERTY(QList<ShortcutGroup> shortcuts READ shortcuts CONSTANT FINAL)

public:
    explicit SettingsTabs(Preferences &preferences, QObject *parent = nullptr);

    QList<SettingsTab> tabs() const;
    /// The stored tab where that is one of them, else the first.
    QString tab() const;
    void setTab(const QString &tab);
    /// In this system's words.
    QList<ShortcutGroup> shortcuts() const;

Q_SIGNALS:
    void tabChanged();

private:
    Preferences &m_preferences;
};
