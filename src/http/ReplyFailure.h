#pragma once

#include "http/TransportError.h"

#include <QList>
#include <QNetworkReply>
#include <QSslError>

#include <optional>

/// Why a reply of the network stack is not a usable response; nothing if it is one, whatever its status.
/// `certificateErrors` are the errors that the network stack reported while it established the secure connection.
std::optional<TransportError::Kind> replyFailure(const QNetworkReply &reply,
                                                 const QList<QSslError> &certificateErrors);
