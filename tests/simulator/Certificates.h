#pragma once

#include <QSslConfiguration>

/// The certificates that the tests' servers show.
namespace Certificates {

enum class Kind {
    /// For localhost, 127.0.0.1 and ::1, by the authority of the tests.
    Good,
    /// By the same authority, for another host.
    OtherHost,
    /// Expired in 2021.
    Expired,
    /// By an authority that nobody trusts.
    Stranger,
};

/// What a server of this kind is set up with.
QSslConfiguration server(Kind kind);

/// As long as this lives, the process trusts the authority of the tests beside those of the system.
class TrustedAuthority
{
public:
    TrustedAuthority();
    ~TrustedAuthority();
    TrustedAuthority(const TrustedAuthority &) = delete;
    TrustedAuthority &operator=(const TrustedAuthority &) = delete;

private:
    QSslConfiguration m_before;
};

} // namespace Certificates
