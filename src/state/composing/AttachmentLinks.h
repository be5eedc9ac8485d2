#pragma once

#include "model/Attachment.h"

#include <QList>

/// A line of Markdown with a link for each attachment that has an address, joined by line breaks.
QString attachmentLinks(const QList<Attachment> &attachments);
