#pragma once

#include "simulator/Certificates.h"
#include "simulator/RawAnswer.h"

#include <QString>

#include <optional>
#include <ostream>

/// One way in which a site or the network to it fails, and what the user then reads.
struct Fault
{
    enum class Place {
        /// The site answers, with `answer`.
        Answer,
        /// The site's host has no address.
        Name,
        /// Nobody listens at the site's port.
        Port,
        /// The site shows `certificate`.
        Certificate,
        /// The site answers with `answer`, and then time goes by without another byte.
        Time,
    };
    /// What the user reads, by what an operation makes of an answer; nothing where it succeeds all the same. Those that
    /// are not told are as for an operation that reads its answer.
    struct Texts
    {
        std::optional<QString> reading;
        std::optional<std::optional<QString>> readingList;
        std::optional<std::optional<QString>> ignoring;
        std::optional<std::optional<QString>> upload;
        std::optional<std::optional<QString>> download;
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

/// Of connections and of answers that are none.
const QList<Fault> &transportFaults();
/// Answers by which a site refuses.
const QList<Fault> &refusals();
