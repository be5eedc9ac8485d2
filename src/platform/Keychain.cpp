#include "platform/Keychain.h"

using namespace Qt::StringLiterals;

namespace {

QString textOr(const QString &text, qint32 status)
{
    return text.isEmpty() ? u"Erreur du trousseau ("_s + QString::number(status) + u")."_s : text;
}

} // namespace

Keychain::Failure::Failure(qint32 status, const QString &text)
    : ::Failure(textOr(text, status)), m_status(status)
{
}

QString Keychain::serviceName()
{
    return u"fr.orvantis.Velmora"_s;
}

QString Keychain::label(const QString &account)
{
    return u"Velmora — "_s + account;
}
