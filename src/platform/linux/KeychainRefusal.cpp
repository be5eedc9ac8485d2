#include "platform/linux/KeychainRefusal.h"

#include "platform/linux/KeychainLinux.h"

#include <algorithm>
#include <array>
#include <libsecret/secret.h>

using namespace Qt::StringLiterals;

namespace {

struct Words
{
    qint32 status;
    QStringView reason;
    QStringView advice;
};

constexpr std::array KnownReasons = {
    Words{KeychainLinux::Locked, u"le trousseau est verrouillé",
          u"Le trousseau du système est verrouillé. Déverrouille-le, puis réessaie."},
    Words{KeychainLinux::Absent, u"aucun trousseau n'est disponible",
          u"Aucun trousseau n'est disponible pour garder le token. Lance celui de ton bureau "
          u"(GNOME Keyring ou "
          u"KWallet), puis réessaie."},
    Words{KeychainLinux::TimedOut, u"le trousseau ne répond pas",
          u"Le trousseau du système ne répond pas. Réessaie dans un instant."},
};

const Words *wordsFor(qint32 status)
{
    const auto found = std::ranges::find(KnownReasons, status, &Words::status);
    return found == KnownReasons.end() ? nullptr : &*found;
}

bool isSilence(const GError &error)
{
    return g_error_matches(&error, G_IO_ERROR, G_IO_ERROR_TIMED_OUT) ||
           g_error_matches(&error, G_DBUS_ERROR, G_DBUS_ERROR_NO_REPLY) ||
           g_error_matches(&error, G_DBUS_ERROR, G_DBUS_ERROR_TIMEOUT) ||
           g_error_matches(&error, G_DBUS_ERROR, G_DBUS_ERROR_TIMED_OUT);
}

} // namespace

KeychainRefusal refusalFor(const GError &error)
{
    if (g_error_matches(&error, SECRET_ERROR, SECRET_ERROR_IS_LOCKED))
        return KeychainRefusal(KeychainLinux::Locked);
    if (isSilence(error))
        return KeychainRefusal(KeychainLinux::TimedOut);
    // The errors of a failed connection to the bus all belong to these two domains.
    if (error.domain == G_IO_ERROR || error.domain == G_DBUS_ERROR)
        return KeychainRefusal(KeychainLinux::Absent);
    return KeychainRefusal(error.code, QString::fromUtf8(error.message));
}

Keychain::Failed asLookup(const KeychainRefusal &refusal)
{
    const Words *words = wordsFor(refusal.status);
    return {refusal.status, words ? words->reason.toString() : refusal.detail};
}

Keychain::Failure asFailure(const KeychainRefusal &refusal)
{
    const Words *words = wordsFor(refusal.status);
    return Keychain::Failure(refusal.status, words ? words->advice.toString() : refusal.detail);
}
