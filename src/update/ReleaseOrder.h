#pragma once

#include "update/ReleaseInfo.h"

/// Comparisons that decide whether a release is offered.
namespace ReleaseOrder {

/// Compares two texts in which runs of decimal digits count as numbers, so that "1.10" sorts after "1.9". Other
/// characters are compared by their code, with case. Negative, 0 or positive.
int numericCompare(QStringView a, QStringView b);

/// True if the release is newer than the running program. If both builds are whole decimal numbers that differ, they
/// decide; otherwise the versions do.
bool isNewer(const ReleaseInfo &release, const QString &currentVersion,
             const QString &currentBuild);

/// The part of a system's version that a release can require.
struct SystemVersion
{
    qint64 major = 0;
    qint64 minor = 0;

    bool operator==(const SystemVersion &) const = default;
};

/// The first two integers between the dots of a text; parts that are no integers are skipped, and missing ones are 0.
SystemVersion systemVersion(const QString &text);

} // namespace ReleaseOrder
