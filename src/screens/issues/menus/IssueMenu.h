#pragma once

#include "screens/issues/menus/MenuSection.h"
#include "state/AppStore.h"

#include <QPointer>

/// The submenus of the context menu of some issues: statuses, priorities, people and, if the list has any, labels.
QList<MenuSection> issueMenuSections(const AppStore &store, const QStringList &keys);

/// The context menu of a row or a card. It keeps the issues for which it was opened, even if the checked issues change
/// meanwhile.
class IssueMenu : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store MEMBER m_store NOTIFY storeChanged FINAL REQUIRED)
    /// At least one while the menu is shown.
    Q_PROPERTY(QStringList keys READ keys NOTIFY changed FINAL)
    Q_PROPERTY(QList<MenuSection> sections READ sections NOTIFY changed FINAL)
    Q_PROPERTY(bool isSingle READ isSingle NOTIFY changed FINAL)
    /// "Copier les 3 clés".
    Q_PROPERTY(QString copyKeysTitle READ copyKeysTitle NOTIFY changed FINAL)

public:
    using QObject::QObject;

    const QStringList &keys() const { return m_keys; }
    const QList<MenuSection> &sections() const { return m_sections; }
    bool isSingle() const { return m_keys.size() == 1; }
    QString copyKeysTitle() const;

    /// Prepares the menu for an issue: for all checked issues if it is one of them, otherwise for it alone.
    Q_INVOKABLE void prepare(const QString &key);
    /// Carries out an entry of a submenu, as it was when the menu was prepared.
    Q_INVOKABLE void choose(const MenuChoice &choice);
    /// Carries out a command on the issues of the menu.
    Q_INVOKABLE void run(Commands::Command command);

Q_SIGNALS:
    void storeChanged();
    void changed();

private:
    QPointer<AppStore> m_store;
    QStringList m_keys;
    QList<MenuSection> m_sections;
};
