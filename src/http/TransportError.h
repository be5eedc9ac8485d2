#pragma once

#include "model/Failure.h"

/// Why a request brought no answer that can be used.
class TransportError final : public Failure
{
public:
    enum class Kind {
        /// The address that was asked for is not one of https or http.
        NoWebAddress,
        /// No address is known for the name of the host.
        HostNotFound,
        /// Nobody listens at the address.
        Refused,
        /// The connection broke before the answer was complete.
        ConnectionLost,
        /// One of the request's time limits is over.
        TimedOut,
        /// The host cannot be reached.
        Unreachable,
        /// The certificate names other hosts.
        WrongHost,
        CertificateExpired,
        CertificateNotYetValid,
        /// The certificate comes from no authority that the system trusts.
        UnknownAuthority,
        /// No secure connection came about, for any other reason.
        NotSecure,
        /// The proxy cannot be reached, or does not do its work.
        ProxyFailed,
        /// The proxy wants to know who asks.
        ProxyWantsLogin,
        /// More than ten redirects.
        TooManyRedirects,
        /// A redirect from https to anything else.
        UnsafeRedirect,
        /// A redirect of a body to another origin, which bodies do not follow.
        ForeignRedirect,
        /// The answer has more bytes than are kept in memory.
        TooLarge,
        /// The answer cannot be unpacked, or is no HTTP.
        Broken,
        /// The answer could not be stored on disk.
        NotStored
    };

    explicit TransportError(Kind kind);

    Kind kind() const { return m_kind; }

private:
    Kind m_kind;
};
