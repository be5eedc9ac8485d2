#pragma once

#include "model/JiraUser.h"

#include <QList>
#include <QString>

/// The users to suggest for the words after an "@": at most 6 of the pool, in which each user is counted once, at the
/// first place. Without words, the first ones. Otherwise those whose name starts with the words, then those with another
/// word of the name that does; only if there are none, those whose name contains the words or whose e-mail starts with
/// them. Equally good ones stay in the order of the pool. Case and accents are ignored on both sides.
QList<JiraUser> mentionSuggestions(const QString &words, const QList<JiraUser> &pool);
