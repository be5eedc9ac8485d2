#include "platform/FakePrompter.h"

#include <QDBusMessage>
#include <QDBusPendingCall>

using namespace Qt::StringLiterals;

namespace {

const auto Name = u"org.gnome.keyring.SystemPrompter"_s;
const auto Path = u"/org/gnome/keyring/Prompter"_s;
const auto Callback = u"org.gnome.keyring.internal.Prompter.Callback"_s;

} // namespace

FakePrompter::FakePrompter(QDBusConnection bus, User user) : m_bus(std::move(bus)), m_user(user)
{
    m_bus.registerObject(Path, this, QDBusConnection::ExportScriptableContents);
    m_bus.registerService(Name);
}

FakePrompter::~FakePrompter()
{
    m_bus.unregisterService(Name);
}

void FakePrompter::BeginPrompting(const QDBusObjectPath &callback)
{
    answer(callback, QString());
}

void FakePrompter::PerformPrompt(const QDBusObjectPath &callback, const QString &,
                                 const QVariantMap &, const QString &)
{
    ++m_asked;
    if (m_user == User::Refuses)
        answer(callback, u"no"_s);
}

void FakePrompter::StopPrompting(const QDBusObjectPath &callback)
{
    m_bus.asyncCall(QDBusMessage::createMethodCall(message().service(), callback.path(), Callback,
                                                   u"PromptDone"_s));
}

void FakePrompter::answer(const QDBusObjectPath &callback, const QString &reply)
{
    // The keyring expects the reply to its own call before it is called back.
    setDelayedReply(true);
    m_bus.send(message().createReply());
    auto call = QDBusMessage::createMethodCall(message().service(), callback.path(), Callback,
                                               u"PromptReady"_s);
    call << reply << QVariantMap() << QString();
    m_bus.asyncCall(call);
}
