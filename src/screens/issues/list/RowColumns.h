#pragma once

#include "screens/theme/Metrics.h"
#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// The widths of the columns that all rows of a list share, in logical pixels.
class RowColumns : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    /// The width of the widest visible key, so that summaries are aligned, limited so that a long project key leaves
    /// enough width for the row: 36 to 150, and 36 without keys. It is measured with one key of each length and
    /// project, and not with every row.
    Q_PROPERTY(int keyWidth READ keyWidth NOTIFY changed FINAL)
    /// The width of the last column: 132 in a recap in which at least one row ends with an event, otherwise 54.
    Q_PROPERTY(int updatedWidth READ updatedWidth NOTIFY changed FINAL)

public:
    using QObject::QObject;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    int keyWidth() const { return m_keyWidth; }
    int updatedWidth() const { return m_updatedWidth; }

Q_SIGNALS:
    void storeChanged();
    void changed();

private:
    void measure();

    QPointer<AppStore> m_store;
    int m_keyWidth = Metrics::rowKeyMinimum;
    int m_updatedWidth = Metrics::rowDate;
};
