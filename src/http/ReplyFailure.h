#pragma once

#include "http/TransportError.h"

#include <QList>
#include <QNetworkReply>
#include <QSslError>

#include <optional>

/// What kept a reply from being an answer, in the words of `TransportError`; nothing when it is one, of any status.
/// `certificateErrors` is what the network stack complained of while the connection was made secure.
std::optional<TransportError::Kind> replyFailure(const QNetworkReply &reply,
                                                 const QList<QSslError> &certificateErrors);
