#pragma once

#include "model/Attachment.h"
#include "model/Comment.h"

#include <QList>

/// The attachments that a comment refers to without showing them in its text: those that belong to it, then those that
/// its links lead to, in this order and each once. `attachments` are those of the issue.
QList<Attachment> referencedFiles(const Comment &comment, const QList<Attachment> &attachments);
