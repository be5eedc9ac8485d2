#pragma once

#include "model/Enums.h"

#include <QColor>
#include <QStringView>

/// The colours that identify a thing: a status, a priority, a type, a label, a project, a person, the user's accent.
/// They are the same in both appearances and, where a hash chooses them, on every machine.
namespace IdentityColors {

enum class Ground { Light, Dark };

QColor inProgress();
/// Work past half-way; also the story type.
QColor review();
QColor urgent();
/// Backlog, to do, cancelled, no priority, nobody.
QColor neutral();
QColor internalNote();

/// The colour of an issue type's family.
QColor type(Model::IssueTypeKind kind);
/// The colour of a label's dot, by its name.
QColor label(QStringView name);
/// The colour of a project's badge, by its key.
QColor project(QStringView key);
/// The colour of a person's disc, by the account's id and not the name, which may change.
QColor person(QStringView accountId);

/// The accent itself: discs, check boxes, focus, symbols, outlines.
QColor accent(AccentChoice choice);
/// The accent darkened until white text on it reads at 4.5:1.
QColor accentFill(AccentChoice choice);
/// The accent as text, moved until it reads at 4.5:1 on every ground of the appearance.
QColor accentText(AccentChoice choice, Ground ground);

} // namespace IdentityColors
