#pragma once

#include "state/AppStore.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// The common width of the key column: as wide as the widest key on screen, so that summaries line up and a long project
/// key cannot eat the row. Told by one key of each kind, not by every row.
class KeyColumn : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    /// Logical pixels, 36 to 150; 36 with no keys.
    Q_PROPERTY(int width READ width NOTIFY widthChanged FINAL)

public:
    using QObject::QObject;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    int width() const { return m_width; }

Q_SIGNALS:
    void storeChanged();
    void widthChanged();

private:
    void measure();

    QPointer<AppStore> m_store;
    int m_width = 36;
};

/// The width of a column that holds all the keys: the widest plus 4, rounded up, between 36 and 150. `advance` measures
/// one text; digits are taken to be of one width, so keys of one project and length are measured once.
int keyColumnWidth(const KeyShapes &keys, const std::function<qreal(const QString &)> &advance);
