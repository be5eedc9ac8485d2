#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QFuture>
#include <QList>
#include <QObject>
#include <QPromise>
#include <QString>
#include <QUrl>
#include <QVariantMap>

#include <optional>

/// One question to the file chooser of the desktop portal. It destroys itself when it is answered.
///
/// A portal responds to the call with the path of a request, and later with a signal of that request. The path follows
/// from a token that the caller chooses, so that the signal cannot be missed.
class PortalRequest : public QObject
{
    Q_OBJECT

public:
    /// The chosen files, none if the user cancelled; nothing if the portal cannot show the dialog.
    using Answer = std::optional<QList<QUrl>>;

    /// `method` is OpenFile or SaveFile. `window` identifies the window to which the dialog belongs, as portals do.
    static QFuture<Answer> ask(const QDBusConnection &bus, const QString &method,
                               const QString &window, const QString &title, QVariantMap options);

private:
    PortalRequest(QDBusConnection bus, QString path);

    Q_SLOT void takeResponse(uint response, const QVariantMap &results);

    void listen(const QString &path);
    void finish(const Answer &answer);

    QDBusConnection m_bus;
    QString m_path;
    QPromise<Answer> m_promise;
    bool m_isFinished = false;
};
