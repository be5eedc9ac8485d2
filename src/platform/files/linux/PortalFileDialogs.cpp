#include "platform/files/linux/PortalFileDialogs.h"

#include "platform/files/linux/PortalRequest.h"

#include <QCoro/QCoroFuture>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace {

/// Names the window as portals expect it. Under Wayland a window has no name without a further protocol, and the dialog
/// then belongs to no window.
QString portalName(const QWindow *window)
{
    if (!window || QGuiApplication::platformName() != "xcb"_L1)
        return {};
    return u"x11:"_s + QString::number(window->winId(), 16);
}

} // namespace

PortalFileDialogs::PortalFileDialogs(QDBusConnection bus, std::shared_ptr<FileDialogs> otherwise)
    : m_bus(std::move(bus)), m_otherwise(std::move(otherwise))
{
}

QCoro::Task<QList<QUrl>> PortalFileDialogs::filesToOpen(QString title, QPointer<QWindow> window)
{
    const auto otherwise = m_otherwise;
    QVariantMap options;
    options.insert(u"multiple"_s, true);
    options.insert(u"accept_label"_s, u"Joindre"_s);
    const QFuture<PortalRequest::Answer> question =
        PortalRequest::ask(m_bus, u"OpenFile"_s, portalName(window), title, options);
    const PortalRequest::Answer answer = co_await question;
    if (answer)
        co_return *answer;
    co_return co_await otherwise->filesToOpen(title, window);
}

QCoro::Task<std::optional<QUrl>> PortalFileDialogs::placeToSave(QString title, QString name,
                                                                QPointer<QWindow> window)
{
    const auto otherwise = m_otherwise;
    QVariantMap options;
    options.insert(u"current_name"_s, name);
    options.insert(u"accept_label"_s, u"Enregistrer"_s);
    const QFuture<PortalRequest::Answer> question =
        PortalRequest::ask(m_bus, u"SaveFile"_s, portalName(window), title, options);
    const PortalRequest::Answer answer = co_await question;
    if (!answer)
        co_return co_await otherwise->placeToSave(title, name, window);
    co_return answer->isEmpty() ? std::nullopt : std::optional(answer->first());
}
