#pragma once

#include "state/AppStore.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// The common width of the key column: the width of the widest visible key, so that summaries are aligned, limited so
/// that a long project key leaves enough width for the row. It is measured with one key of each length and project, and
/// not with every row.
class KeyColumn : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    /// In logical pixels, 36 to 150. 36 without keys.
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

/// The width of a column that holds all the keys: the widest one plus 4, rounded up, between 36 and 150. `advance`
/// measures one text. All digits are assumed to have the same width, so keys of the same project and length are
/// measured once.
int keyColumnWidth(const KeyShapes &keys, const std::function<qreal(const QString &)> &advance);
