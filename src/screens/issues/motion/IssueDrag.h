#pragma once

#include "screens/kit/controls/PressArea.h"
#include "state/AppStore.h"

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

/// The content of a dragged issue by media type: the key as plain text and, if the issue has an address, a link with a
/// title, which mail clients and word processors insert as such.
QVariantMap dragContent(const Issue &issue, const std::optional<QUrl> &address);

/// The issue that is dragged out of its row or card.
class IssueDrag : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store MEMBER m_store NOTIFY storeChanged FINAL REQUIRED)
    Q_PROPERTY(Issue issue READ issue NOTIFY changed FINAL)
    /// The number of issues that the drag moves: several if the dragged issue is one of several checked ones.
    Q_PROPERTY(int count READ count NOTIFY changed FINAL)
    /// The number of pixels of the screen per logical pixel, in which the picture of the drag is drawn.
    Q_PROPERTY(double ratio READ ratio NOTIFY changed FINAL)
    /// The picture may have round corners and a shadow.
    Q_PROPERTY(bool isComposed READ isComposed NOTIFY changed FINAL)

public:
    using QObject::QObject;

    const Issue &issue() const { return m_issue; }
    int count() const { return m_count; }
    double ratio() const { return m_ratio; }
    bool isComposed() const { return m_isComposed; }

    /// Selects the issue to drag out of the window of an item. False if the issue is not known.
    Q_INVOKABLE bool take(const QString &key, QQuickItem *source);
    /// Drags the issue until it is dropped, with a picture of `ratio` pixels per logical pixel that is under the pointer
    /// at `hotSpot`, in logical pixels. Does nothing if the source was destroyed or is no longer dragged.
    Q_INVOKABLE void start(PressArea *source, const QImage &picture, QPointF hotSpot);

Q_SIGNALS:
    void storeChanged();
    void changed();

private:
    QPointer<AppStore> m_store;
    Issue m_issue;
    QVariantMap m_content;
    int m_count = 0;
    double m_ratio = 1;
    bool m_isComposed = false;
};
