#pragma once

#include "model/JiraUser.h"

#include <QCoro/QCoroTask>
#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

/// An external picture for an Image. `source` is empty until the picture is loaded, and again after a change of the
/// address. A picture that is already loaded is available at once.
class RemotePicture : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The address of the picture. Empty for none.
    Q_PROPERTY(QUrl address READ address WRITE setAddress NOTIFY addressChanged FINAL)
    Q_PROPERTY(bool isLoaded READ isLoaded NOTIFY sourceChanged FINAL)
    /// There is no address, or the picture cannot be fetched or decoded.
    Q_PROPERTY(bool isMissing READ isMissing NOTIFY sourceChanged FINAL)
    /// The source for an Image. Empty while there is no picture.
    Q_PROPERTY(QUrl source READ source NOTIFY sourceChanged FINAL)
    /// The same for the picture masked to a disc.
    Q_PROPERTY(QUrl roundSource READ roundSource NOTIFY sourceChanged FINAL)

public:
    using QObject::QObject;

    const QUrl &address() const { return m_address; }
    void setAddress(const QUrl &address);
    bool isLoaded() const { return m_isLoaded; }
    bool isMissing() const { return m_address.isEmpty() || m_hasFailed; }
    QUrl source() const;
    QUrl roundSource() const;

Q_SIGNALS:
    void addressChanged();
    void sourceChanged();

private:
    void finish(bool loaded);
    QCoro::Task<> load(QUrl address);

    QUrl m_address;
    bool m_isLoaded = false;
    bool m_hasFailed = false;
};
