#pragma once

#include "model/JiraUser.h"

#include <QCoro/QCoroTask>
#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

/// A picture from outside, for an Image: empty until it is there, and again for another address. A picture that is known
/// already is there at once.
class RemotePicture : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// Where it is to be had; empty for none.
    Q_PROPERTY(QUrl address READ address WRITE setAddress NOTIFY addressChanged FINAL)
    Q_PROPERTY(bool isLoaded READ isLoaded NOTIFY sourceChanged FINAL)
    /// What an Image shows; empty while there is nothing to show.
    Q_PROPERTY(QUrl source READ source NOTIFY sourceChanged FINAL)
    /// The same, cut to a disc.
    Q_PROPERTY(QUrl roundSource READ roundSource NOTIFY sourceChanged FINAL)

public:
    using QObject::QObject;

    const QUrl &address() const { return m_address; }
    void setAddress(const QUrl &address);
    bool isLoaded() const { return m_isLoaded; }
    QUrl source() const;
    QUrl roundSource() const;

Q_SIGNALS:
    void addressChanged();
    void sourceChanged();

private:
    void setLoaded(bool loaded);
    QCoro::Task<> load(QUrl address);

    QUrl m_address;
    bool m_isLoaded = false;
};
