#pragma once

#include "model/ADFNode.h"

#include <QString>
#include <QStringList>

#include <optional>

/// Finds the attachments that the media of a document stand for. A document identifies its media by identifiers of
/// another service. Only the HTML that Jira rendered from the document refers to attachments, in the same order.
namespace AttachmentRefs {

/// The identifiers of the attachments that links and images in the HTML refer to, without duplicates, in order of first
/// occurrence. Takes linear time for any text.
QStringList ids(QStringView html);

/// The document with its n-th media node linked to the n-th attachment; unchanged if there are no attachments.
std::optional<ADFNode> tied(const std::optional<ADFNode> &document, const QStringList &ids);

} // namespace AttachmentRefs
