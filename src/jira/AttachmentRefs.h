#pragma once

#include "model/ADFNode.h"

#include <QString>
#include <QStringList>

#include <optional>

/// How the media of a document find their attachments. A document names media by identifiers of another service; only
/// the HTML that Jira made of it refers to attachments, in the same order.
namespace AttachmentRefs {

/// The attachments that links and pictures in the HTML refer to, each once, in order of first occurrence. Takes time in
/// proportion to the text, whatever it holds.
QStringList ids(QStringView html);

/// The document with the n-th of its media tied to the n-th attachment; as it is when there are no attachments.
std::optional<ADFNode> tied(const std::optional<ADFNode> &document, const QStringList &ids);

} // namespace AttachmentRefs
