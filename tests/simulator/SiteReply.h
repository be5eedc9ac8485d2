#pragma once

#include "simulator/server/RawAnswer.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QMap>
#include <QStringList>

#include <chrono>

/// The formats of the site's responses.
namespace SiteReply {

RawAnswer found(const QJsonObject &body, int status = 200);
RawAnswer found(const QJsonArray &body);
/// 204, without a body.
RawAnswer done();
/// An error with general messages and with messages by field name.
RawAnswer refused(int status, const QStringList &messages,
                  const QMap<QString, QString> &errors = {});
/// 429: the client should wait for this time.
RawAnswer tooManyRequests(std::chrono::seconds wait);
RawAnswer noSuchIssue();
/// The error for a body that the operation does not accept.
RawAnswer badBody();

} // namespace SiteReply
