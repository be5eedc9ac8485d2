#include "http/ReplyFailure.h"

#include <algorithm>
#include <array>

namespace {

using Kind = TransportError::Kind;

struct CertificateFault
{
    QSslError::SslError error;
    Kind kind;
};

/// In order of priority: a certificate may have several errors, and the first of this list is reported.
constexpr std::array CertificateFaults = {
    CertificateFault{QSslError::HostNameMismatch, Kind::WrongHost},
    CertificateFault{QSslError::CertificateExpired, Kind::CertificateExpired},
    CertificateFault{QSslError::CertificateNotYetValid, Kind::CertificateNotYetValid},
    CertificateFault{QSslError::UnableToGetIssuerCertificate, Kind::UnknownAuthority},
    CertificateFault{QSslError::UnableToGetLocalIssuerCertificate, Kind::UnknownAuthority},
    CertificateFault{QSslError::UnableToVerifyFirstCertificate, Kind::UnknownAuthority},
    CertificateFault{QSslError::SelfSignedCertificate, Kind::UnknownAuthority},
    CertificateFault{QSslError::SelfSignedCertificateInChain, Kind::UnknownAuthority},
    CertificateFault{QSslError::CertificateUntrusted, Kind::UnknownAuthority},
    CertificateFault{QSslError::InvalidCaCertificate, Kind::UnknownAuthority},
};

Kind certificateFailure(const QList<QSslError> &errors)
{
    for (const CertificateFault &fault : CertificateFaults) {
        if (std::ranges::any_of(errors, [&](const auto &e) { return e.error() == fault.error; }))
            return fault.kind;
    }
    return Kind::NotSecure;
}

Kind connectionFailure(QNetworkReply::NetworkError error)
{
    switch (error) {
    case QNetworkReply::HostNotFoundError:
        return Kind::HostNotFound;
    case QNetworkReply::ConnectionRefusedError:
        return Kind::Refused;
    case QNetworkReply::RemoteHostClosedError:
    case QNetworkReply::TemporaryNetworkFailureError:
    case QNetworkReply::ContentReSendError:
        return Kind::ConnectionLost;
    case QNetworkReply::TimeoutError:
    case QNetworkReply::ProxyTimeoutError:
        return Kind::TimedOut;
    case QNetworkReply::ProxyAuthenticationRequiredError:
        return Kind::ProxyWantsLogin;
    case QNetworkReply::ProxyConnectionRefusedError:
    case QNetworkReply::ProxyConnectionClosedError:
    case QNetworkReply::ProxyNotFoundError:
    case QNetworkReply::UnknownProxyError:
        return Kind::ProxyFailed;
    case QNetworkReply::NetworkSessionFailedError:
    case QNetworkReply::UnknownNetworkError:
        return Kind::Unreachable;
    default:
        return Kind::Broken;
    }
}

/// The first error code by which the network stack represents an HTTP status; all higher codes do so too.
constexpr int FirstErrorOfStatus = QNetworkReply::ContentAccessDenied;

} // namespace

std::optional<Kind> replyFailure(const QNetworkReply &reply,
                                 const QList<QSslError> &certificateErrors)
{
    const QNetworkReply::NetworkError error = reply.error();
    const bool hasStatus = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() != 0;
    if (hasStatus && (error == QNetworkReply::NoError || error >= FirstErrorOfStatus))
        return std::nullopt;
    if (error == QNetworkReply::SslHandshakeFailedError)
        return certificateFailure(certificateErrors);
    return connectionFailure(error);
}
