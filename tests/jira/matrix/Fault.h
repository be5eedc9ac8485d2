#pragma once

#include "simulator/server/Certificates.h"
#include "simulator/server/RawAnswer.h"

#include <QString>

#include <optional>
#include <ostream>

/// A fault of a site or of the network, and the text that the user then reads.
struct Fault
{
    enum class Place {
        /// The site responds with `answer`.
        Answer,
        /// The host name of the site cannot be resolved.
        Name,
        /// The site's port refuses connections.
        Port,
        /// The site uses `certificate`.
        Certificate,
        /// The site responds with `answer` and then sends nothing more until a time limit is exceeded.
        Time,
    };
    /// The text that the user reads, by how an operation uses the response; nothing where the operation succeeds in
    /// spite of the fault. An absent member means the same text as `reading`.
    struct Texts
    {
        std::optional<QString> reading;
        std::optional<std::optional<QString>> readingList;
        std::optional<std::optional<QString>> ignoring;
        std::optional<std::optional<QString>> upload;
        std::optional<std::optional<QString>> download;
        /// For every operation that changes the site.
        std::optional<std::optional<QString>> changing = {};
    };

    const char *name;
    Place place = Place::Answer;
    Texts texts;
    RawAnswer answer;
    Certificates::Kind certificate = Certificates::Kind::Good;
};

/// Names a fault in test output.
inline void PrintTo(const Fault &fault, std::ostream *stream)
{
    *stream << fault.name;
}

/// Faults of connections and malformed responses.
const QList<Fault> &transportFaults();
/// Responses with which a site refuses a request.
const QList<Fault> &refusals();
