#pragma once

#include "model/Enums.h"
#include "model/IssueStatus.h"
#include "model/JiraUser.h"

#include <QHash>
#include <QImage>

#include <functional>
#include <optional>

/// The bitmaps of icons for native menus, which cannot show live drawings: at scale 2, with a margin of 1. Each is
/// drawn once per key and kept for the lifetime of the process. For the UI thread only.
class MenuIconCache
{
public:
    /// The instance of the program.
    static MenuIconCache &shared();

    /// The bitmap for a key, drawn and stored on the first call.
    QImage image(const QString &key, const std::function<QImage()> &draw);
    int count() const { return int(m_cache.size()); }

private:
    QHash<QString, QImage> m_cache;
};

/// The keys of the bitmaps. The key of a status includes the accent, because a finished status has its colour.
QString statusMenuKey(const IssueStatus &status, AccentChoice accent);
QString priorityMenuKey(PriorityLevel level);
/// "avatar-none" without a person.
QString avatarMenuKey(const std::optional<JiraUser> &user);

/// The icon of a status at size 14.
QImage statusMenuImage(const IssueStatus &status, AccentChoice accent);
/// The icon of a priority at size 14, in the neutral colour.
QImage priorityMenuImage(PriorityLevel level);
/// The disc of a person with initials, or the ring for no person, at size 16. Never a photograph.
QImage avatarMenuImage(const std::optional<JiraUser> &user);
