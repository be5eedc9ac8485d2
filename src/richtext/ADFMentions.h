#pragma once

#include "model/ADFNode.h"
#include "model/JiraUser.h"

namespace ADF {

/// Returns a copy of the document in which each "@" followed by the exact name of one of the users is replaced by a
/// mention node. If several names match, the longest is used. The name must end at the end of a word, and an "@"
/// directly after a letter or a digit is part of an address and not a mention. Text in inline code and in links is not
/// changed. Without users that have a name, the copy is unchanged.
ADFNode linkingMentions(ADFNode node, const QList<JiraUser> &users);

} // namespace ADF
