#pragma once

#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// The rules of the sidebar: the names of the site and of its user above the list, and the movement through the rows by
/// keyboard.
class Workspace : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    /// The first letter of the site's name. Empty without a site.
    Q_PROPERTY(QString initial READ initial NOTIFY changed FINAL)
    Q_PROPERTY(QString userName READ userName NOTIFY changed FINAL)
    /// Empty if the service does not disclose it.
    Q_PROPERTY(QString userEmail READ userEmail NOTIFY changed FINAL)
    /// The row of the present scope. -1 if no row has that scope.
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY rowsChanged FINAL)

    /// The row of the project that the present scope belongs to. -1 if there is none.
    Q_PROPERTY(int projectRow READ projectRow NOTIFY rowsChanged FINAL)

public:
    using QObject::QObject;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    QString initial() const;
    QString userName() const;
    QString userEmail() const;
    int selectedRow() const;
    int projectRow() const;

    /// Selects the next selectable row above (-1) or below (1), if there is one. Without a selection, selects the last
    /// (-1) or the first (1) selectable row.
    Q_INVOKABLE void selectNeighbour(int direction);

Q_SIGNALS:
    void storeChanged();
    void changed();
    void rowsChanged();

private:
    QPointer<AppStore> m_store;
};

/// The target row of `selectNeighbour`: the next row with a scope other than that of `from`, or `from` itself if there
/// is none in that direction.
int neighbourRow(const QList<SidebarRow> &rows, int from, int direction);
