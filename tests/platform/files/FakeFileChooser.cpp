#include "platform/files/FakeFileChooser.h"

#include <QDBusMessage>

using namespace Qt::StringLiterals;

FakeFileChooser::FakeFileChooser(QDBusConnection bus) : m_bus(std::move(bus))
{
    m_bus.registerObject(u"/org/freedesktop/portal/desktop"_s, this,
                         QDBusConnection::ExportScriptableContents);
    m_bus.registerService(u"org.freedesktop.portal.Desktop"_s);
}

void FakeFileChooser::respond(uint response, const QStringList &addresses)
{
    auto signal = QDBusMessage::createSignal(questions.constLast().request,
                                             u"org.freedesktop.portal.Request"_s, u"Response"_s);
    signal.setArguments({response, QVariantMap{{u"uris"_s, addresses}}});
    m_bus.send(signal);
}

QDBusObjectPath FakeFileChooser::OpenFile(const QString &window, const QString &title,
                                          const QVariantMap &options)
{
    return note(u"OpenFile"_s, window, title, options);
}

QDBusObjectPath FakeFileChooser::SaveFile(const QString &window, const QString &title,
                                          const QVariantMap &options)
{
    return note(u"SaveFile"_s, window, title, options);
}

QDBusObjectPath FakeFileChooser::note(const QString &method, const QString &window,
                                      const QString &title, const QVariantMap &options)
{
    QString sender = message().service().mid(1);
    sender.replace(u'.', u'_');
    const QString request = u"/org/freedesktop/portal/desktop/request/"_s + sender + u'/' +
                            options.value(u"handle_token"_s).toString();
    questions.append({method, window, title, options, request});
    return QDBusObjectPath(request);
}
