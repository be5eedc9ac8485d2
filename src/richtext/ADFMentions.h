#pragma once

#include "model/ADFNode.h"
#include "model/JiraUser.h"

namespace ADF {

/// A copy of the document in which each "@" followed by the exact name of one of the users has become a mention node.
/// The longest name wins. A name counts only as a whole word, and an "@" right after a letter or a digit is an address,
/// not a mention. Text in inline code and in links stays; so does everything when no user has a name.
ADFNode linkingMentions(ADFNode node, const QList<JiraUser> &users);

} // namespace ADF
