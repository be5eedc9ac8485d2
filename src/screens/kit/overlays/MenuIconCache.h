#pragma once

#include "model/Enums.h"
#include "model/IssueStatus.h"
#include "model/JiraUser.h"

#include <QHash>
#include <QImage>

#include <functional>
#include <optional>

/// The bitmaps of icons for native menus, which cannot hold a live drawing: at scale 2, with 1 round them. Each is drawn
/// once per key and kept for the life of the process. UI thread only.
class MenuIconCache
{
public:
    /// The program's own.
    static MenuIconCache &shared();

    /// The bitmap under a key; drawn and stored on the first call.
    QImage image(const QString &key, const std::function<QImage()> &draw);
    int count() const { return int(m_cache.size()); }

private:
    QHash<QString, QImage> m_cache;
};

/// Keys of the bitmaps. A status's has the accent, which a finished one takes.
QString statusMenuKey(const IssueStatus &status, AccentChoice accent);
QString priorityMenuKey(PriorityLevel level);
/// "avatar-none" for nobody.
QString avatarMenuKey(const std::optional<JiraUser> &user);

/// A status at size 14.
QImage statusMenuImage(const IssueStatus &status, AccentChoice accent);
/// A priority at size 14, in neutral.
QImage priorityMenuImage(PriorityLevel level);
/// A person's disc with initials, or nobody's ring, at size 16; never a photograph.
QImage avatarMenuImage(const std::optional<JiraUser> &user);
