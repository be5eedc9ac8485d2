#pragma once

#include "model/ADFNode.h"
#include "model/dates/UserCalendar.h"
#include "update/UpdateState.h"
#include "update/ui/UpdateLabel.h"

#include <optional>

/// What the screens of updates say.
namespace UpdateTexts {

/// The badge of the sidebar. Absent in the states that show none: all but available, downloading and ready. While a
/// release is downloaded, the badge has no symbol.
std::optional<UpdateLabel> badge(const UpdateState &state);
/// The status in the settings. It has no second line.
UpdateLabel status(const UpdateState &state);

/// The remark below the address of the feed. Both addresses may be empty; a typed one of blanks counts as empty.
QString footnote(const QString &bundledFeed, const QString &customFeed);
/// The placeholder of the address of the feed.
QString feedPrompt(const QString &bundledFeed);
/// The time of the last check as the user writes it, such as "29 oct. 2026 à 14:30".
QString lastCheck(const QDateTime &time, const UserCalendar &calendar);

/// Release notes as a document. Absent if there are none or only blanks.
std::optional<ADFNode> notes(const QString &markdown);
/// The title of the sheet after an update to this version.
QString whatsNewTitle(const QString &version);

} // namespace UpdateTexts
