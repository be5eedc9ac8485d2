#pragma once

#include "model/Enums.h"

#include <QColor>
#include <QStringView>

/// The colours that identify a thing: a status, a priority, a type, a label, a project, a person, or the user's accent.
/// They are the same in both appearances and, where a hash selects them, on every machine.
namespace IdentityColors {

enum class Ground { Light, Dark };

QColor inProgress();
/// For work that is more than half done, and for the story type.
QColor review();
QColor urgent();
/// For backlog, to do, cancelled, no priority and no assignee.
QColor neutral();
QColor internalNote();

/// The colour of an issue type's family.
QColor type(Model::IssueTypeKind kind);
/// The colour of a label's dot, selected by the label's name.
QColor label(QStringView name);
/// The colour of a project's badge, selected by the project's key.
QColor project(QStringView key);
/// The colour of a person's disc, selected by the account's id, because the name may change.
QColor person(QStringView accountId);

/// The accent, for discs, check boxes, focus, symbols and outlines.
QColor accent(AccentChoice choice);
/// The accent, darkened until white text on it has a contrast of 4.5:1.
QColor accentFill(AccentChoice choice);
/// The accent as a text colour, adjusted until it has a contrast of 4.5:1 on every background of the appearance.
QColor accentText(AccentChoice choice, Ground ground);

} // namespace IdentityColors
