#pragma once

#include "http/TransportError.h"

#include <QNetworkReply>

#include <expected>
#include <optional>

/// The length of a response's body in bytes, before decompression, as announced in its header. Absent if the end of the
/// body is marked in another way, or if the response never has a body, whatever its header says. Fails with `Broken` if
/// the length cannot be read, because then a truncated body could not be detected.
std::expected<std::optional<qint64>, TransportError::Kind>
announcedLength(const QNetworkReply &reply);
