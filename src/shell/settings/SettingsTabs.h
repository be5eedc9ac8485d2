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
    /// The identifier that is stored in the preferences.
    QString value;
    QString title;
    QString symbol;

    bool operator==(const SettingsTab &) const = default;
};

/// The tabs of the settings, and the chosen one, which is remembered across starts and sign-outs.
class SettingsTabs : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made with the windows")
    Q_PROPERTY(QList<SettingsTab> tabs READ tabs CONSTANT FINAL)
    Q_PROPERTY(QString tab READ tab WRITE setTab NOTIFY tabChanged FINAL)
    Q_PROPERTY(int index READ index WRITE setIndex NOTIFY tabChanged FINAL)
    Q_PROPERTY(QList<ShortcutGroup> shortcuts READ shortcuts CONSTANT FINAL)

public:
    explicit SettingsTabs(Preferences &preferences, QObject *parent = nullptr);

    QList<SettingsTab> tabs() const;
    /// The identifier that is stored, "account" if none is. An unknown one stays stored and chooses no tab.
    QString tab() const;
    void setTab(const QString &tab);
    /// The position of the chosen tab in `tabs`; -1 if no known tab is chosen.
    int index() const;
    /// A position outside `tabs` changes nothing.
    void setIndex(int index);
    /// The title in the terms of this system.
    QList<ShortcutGroup> shortcuts() const;

Q_SIGNALS:
    void tabChanged();

private:
    Preferences &m_preferences;
};
