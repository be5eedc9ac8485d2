#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusObjectPath>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

/// The file chooser of a desktop portal. It records what it is asked, and responds when a test says so.
class FakeFileChooser : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.FileChooser")

public:
    explicit FakeFileChooser(QDBusConnection bus);

    struct Question
    {
        QString method;
        QString window;
        QString title;
        QVariantMap options;
        QString request;
    };
    QList<Question> questions;

    /// Responds to the last question. 0 stands for a choice, 1 for a cancellation, 2 for another end.
    void respond(uint response, const QStringList &addresses = {});

    Q_SCRIPTABLE QDBusObjectPath OpenFile(const QString &window, const QString &title,
                                          const QVariantMap &options);
    Q_SCRIPTABLE QDBusObjectPath SaveFile(const QString &window, const QString &title,
                                          const QVariantMap &options);

private:
    QDBusObjectPath note(const QString &method, const QString &window, const QString &title,
                         const QVariantMap &options);

    QDBusConnection m_bus;
};
