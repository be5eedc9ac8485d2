#pragma once

#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// The sidebar's rules: how the site and its user are called above the list, and how the keyboard walks the rows.
class Workspace : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    /// The first letter of the site's name; empty without a site.
    Q_PROPERTY(QString initial READ initial NOTIFY changed FINAL)
    Q_PROPERTY(QString userName READ userName NOTIFY changed FINAL)
    /// Empty where the service does not disclose it.
    Q_PROPERTY(QString userEmail READ userEmail NOTIFY changed FINAL)
    /// The row of the present scope; -1 for a scope that no row bears.
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY rowsChanged FINAL)

    /// The row of the project that the present scope belongs to; -1 without one.
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

    /// Selects the next row above (-1) or below (1) that can be selected, if there is one; from no selection, the first
    /// or the last.
    Q_INVOKABLE void selectNeighbour(int direction);

Q_SIGNALS:
    void storeChanged();
    void changed();
    void rowsChanged();

private:
    QPointer<AppStore> m_store;
};

/// The row that `selectNeighbour` goes to: the next with a scope other than that of `from`, or `from` itself when there is
/// none in that direction.
int neighbourRow(const QList<SidebarRow> &rows, int from, int direction);
