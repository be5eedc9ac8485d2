#pragma once

#include "model/ADFNode.h"
#include "model/Attachment.h"

#include <QList>
#include <QString>

#include <optional>

/// Which attachment a media node of a document stands for.
namespace MediaMatch {

/// The media nodes that a "media", "mediaSingle" or "mediaGroup" node shows: the node itself if its type is "media",
/// otherwise its children of that type.
QList<ADFNode> mediaOf(const ADFNode &node);

/// The first attachment with the identifier in the attribute "velmoraAttachmentID". If there is none, the first one
/// whose name is the attribute "alt", and after that the first one whose name equals it without case.
std::optional<Attachment> match(const ADFNode &media, const QList<Attachment> &attachments);

} // namespace MediaMatch
