#pragma once

#include "model/Failure.h"

/// Why a request got no usable response.
class TransportError final : public Failure
{
public:
    enum class Kind {
        /// The requested address is neither http nor https.
        NoWebAddress,
        /// The host name could not be resolved.
        HostNotFound,
        /// The server refused the connection.
        Refused,
        /// The connection broke before the response was complete.
        ConnectionLost,
        /// A time limit of the request was exceeded.
        TimedOut,
        /// The host cannot be reached.
        Unreachable,
        /// The certificate was issued for other hosts.
        WrongHost,
        CertificateExpired,
        CertificateNotYetValid,
        /// The certificate was not issued by an authority that the system trusts.
        UnknownAuthority,
        /// The secure connection could not be established for any other reason.
        NotSecure,
        /// The proxy cannot be reached or does not work.
        ProxyFailed,
        /// The proxy requires authentication.
        ProxyWantsLogin,
        /// More than ten redirects.
        TooManyRedirects,
        /// A redirect from https to another scheme.
        UnsafeRedirect,
        /// A redirect to another origin of a request with a body or a changing method, which is not followed.
        ForeignRedirect,
        /// A redirect of a request that changes data, which is not followed.
        RedirectedWrite,
        /// The response is larger than the request permits.
        TooLarge,
        /// The response cannot be decompressed or is not valid HTTP.
        Broken,
        /// The response could not be stored on disk.
        NotStored
    };

    explicit TransportError(Kind kind);

    Kind kind() const { return m_kind; }

private:
    Kind m_kind;
};
