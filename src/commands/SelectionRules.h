#pragma once

#include "commands/Selection.h"
#include "derivation/VisiblePath.h"

/// How clicks and keys move a selection. `visibleKeys` are the keys of what the layout shows, in reading order.

/// What the modifiers make of a click.
enum class ClickKind { Plain, Toggle, Range };

/// Of Control and Shift, Control counts first.
ClickKind clickKind(Qt::KeyboardModifiers modifiers);

/// A toggling click checks or unchecks; a range click checks everything between the focus and the key, or is a plain
/// click when nothing has the focus; a plain click drops the multi-selection and opens the issue in the inspector. All
/// of them take the focus along.
Selection afterClick(Selection selection, const QString &key, ClickKind kind,
                     const VisiblePath &visibleKeys);
/// Adds the key to the multi-selection, or takes it out.
Selection afterToggleCheck(Selection selection, const QString &key);
/// Adds all keys from one to the other, whichever stands first; nothing when one of them is not visible.
Selection afterCheckRange(Selection selection, const QString &from, const QString &to,
                          const VisiblePath &visibleKeys);

/// Whether a move of the focus checks what it leaves and what it reaches.
enum class FocusMove { Plain, Extending };

/// Moves the focus by `delta` rows, not beyond the ends. A focus that is not visible counts as just outside the list, on
/// the side it comes from. An open inspector follows.
Selection afterMove(Selection selection, int delta, FocusMove move, const VisiblePath &visibleKeys);

/// Return: focuses the target and shows it in the inspector. Nothing without a target.
std::optional<Selection> afterOpen(Selection selection);
/// The space bar: shows the focused issue in the inspector, or closes the inspector on it. Nothing without a focus.
std::optional<Selection> afterPeek(Selection selection);
/// The command to show or hide the inspector: closes it, or opens it on the focused issue, else on the first visible.
Selection afterTogglePeek(Selection selection, const VisiblePath &visibleKeys);
/// The inspector's own switch: on, it shows the focused issue if it shows none yet; off, it closes.
Selection withInspectorShown(Selection selection);
Selection withInspectorHidden(Selection selection);

/// What Escape leaves: the first of these that there is.
enum class EscapeStep { ClearChecked, CloseInspector, ClearFilterText };

std::optional<EscapeStep> escapeStep(const Selection &selection, const QString &filterText);

/// The issue that Return opens: the focused one, else the one in the inspector.
std::optional<QString> openTarget(const Selection &selection);
/// The issues that a key or a menu acts on: the checked ones, in plain text order, else the focused one, else the one in
/// the inspector.
QStringList actionTargets(const Selection &selection);
/// The issues that a context menu or a drag of one row acts on: the checked ones, in plain text order, when the row is
/// among them, else that row alone.
QStringList contextKeys(const Selection &selection, const QString &key);
