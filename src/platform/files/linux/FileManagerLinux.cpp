#include "platform/files/linux/FileManagerLinux.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

using namespace Qt::StringLiterals;

namespace {

QDBusMessage showing(const QUrl &file)
{
    auto message = QDBusMessage::createMethodCall(
        u"org.freedesktop.FileManager1"_s, u"/org/freedesktop/FileManager1"_s,
        u"org.freedesktop.FileManager1"_s, u"ShowItems"_s);
    const QStringList addresses{file.toString(QUrl::FullyEncoded)};
    // The second argument identifies the start for the desktop; empty for none.
    message.setArguments({addresses, QString()});
    return message;
}

} // namespace

FileManagerLinux::FileManagerLinux(QDBusConnection bus,
                                   std::function<void(const QUrl &)> openFolder)
    : m_bus(std::move(bus)), m_openFolder(std::move(openFolder))
{
}

void FileManagerLinux::reveal(const QUrl &file)
{
    auto *call =
        std::make_unique<QDBusPendingCallWatcher>(m_bus.asyncCall(showing(file)), this).release();
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, file, call] {
        call->deleteLater();
        if (call->isError())
            m_openFolder(file.adjusted(QUrl::RemoveFilename | QUrl::StripTrailingSlash));
    });
}
