#pragma once

#include "simulator/RawAnswer.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QMap>
#include <QStringList>

/// The forms in which the site answers.
namespace SiteReply {

RawAnswer found(const QJsonObject &body, int status = 200);
RawAnswer found(const QJsonArray &body);
/// 204, without a body.
RawAnswer done();
/// With messages for the whole, and by the name of a field.
RawAnswer refused(int status, const QStringList &messages,
                  const QMap<QString, QString> &errors = {});
RawAnswer noSuchIssue();
/// The body is not what the operation takes.
RawAnswer badBody();

} // namespace SiteReply
