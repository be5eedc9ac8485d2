#pragma once

#include "model/Failure.h"

#include <variant>

/// The failures of the road to Jira.
class JiraError final : public Failure
{
public:
    /// The server answered with an error status; `message` is what it said, empty when it said nothing.
    struct Http
    {
        int status = 0;
        QString message;
        bool operator==(const Http &) const = default;
    };
    /// The answer could not be read; the text names the place.
    struct Decoding
    {
        QString detail;
        bool operator==(const Decoding &) const = default;
    };
    /// The workflow offers no way to the status of this name. Raised by the store, not by a service.
    struct TransitionUnavailable
    {
        QString statusName;
        bool operator==(const TransitionUnavailable &) const = default;
    };
    /// The answer is not one that the interface allows.
    struct InvalidResponse
    {
        bool operator==(const InvalidResponse &) const = default;
    };
    /// The address is not one of a site.
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
