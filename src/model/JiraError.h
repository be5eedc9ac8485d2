#pragma once

#include "model/Failure.h"

#include <variant>

/// The errors of the communication with Jira.
class JiraError final : public Failure
{
public:
    /// The server returned an error status. `message` is the server's explanation, or empty if it gave none.
    struct Http
    {
        int status = 0;
        QString message;
        bool operator==(const Http &) const = default;
    };
    /// The response could not be decoded; `detail` names the position of the error.
    struct Decoding
    {
        QString detail;
        bool operator==(const Decoding &) const = default;
    };
    /// The workflow has no transition to the status with this name. Raised by the store, not by a service.
    struct TransitionUnavailable
    {
        QString statusName;
        bool operator==(const TransitionUnavailable &) const = default;
    };
    /// The response has a form that the interface does not allow.
    struct InvalidResponse
    {
        bool operator==(const InvalidResponse &) const = default;
    };
    /// The given address is not the address of a Jira site.
    struct InvalidSite
    {
        bool operator==(const InvalidSite &) const = default;
    };
    using Case = std::variant<Http, Decoding, TransitionUnavailable, InvalidResponse, InvalidSite>;

    explicit JiraError(Case value);

    const Case &value() const { return m_value; }
    bool operator==(const JiraError &other) const { return m_value == other.m_value; }

private:
    Case m_value;
};
