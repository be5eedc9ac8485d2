#pragma once

#include <QSslConfiguration>

/// The certificates of the test servers.
namespace Certificates {

enum class Kind {
    /// Valid for localhost, 127.0.0.1 and ::1, issued by the tests' authority.
    Good,
    /// Issued by the tests' authority for another host.
    OtherHost,
    /// Expired in 2021.
    Expired,
    /// Issued by an authority that is not trusted.
    Stranger,
};

/// The TLS configuration of a server with this certificate.
QSslConfiguration server(Kind kind);

/// During its lifetime, the process trusts the tests' authority in addition to those of the system.
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
