#pragma once

#include "commands/Selection.h"
#include "derivation/VisiblePath.h"

/// How clicks and keys change a selection. `visibleKeys` are the keys of what the layout shows, in reading order.

/// The kind of a click, which depends on the modifiers.
enum class ClickKind { Plain, Toggle, Range };

/// If both Control and Shift are held, Control takes precedence.
ClickKind clickKind(Qt::KeyboardModifiers modifiers);

/// A toggling click checks or unchecks the issue. A range click checks all issues from the focus to the key, or is a
/// plain click if nothing has the focus. A plain click clears the multi-selection and opens the issue in the inspector.
/// All of them move the focus to the issue.
Selection afterClick(Selection selection, const QString &key, ClickKind kind,
                     const VisiblePath &visibleKeys);
/// Adds the key to the multi-selection, or removes it.
Selection afterToggleCheck(Selection selection, const QString &key);
/// Adds all keys between the two, inclusive, in either order; adds nothing if one of them is not visible.
Selection afterCheckRange(Selection selection, const QString &from, const QString &to,
                          const VisiblePath &visibleKeys);

/// Whether a move of the focus checks the issue that it leaves, the issue that it reaches, and those between them.
enum class FocusMove { Plain, Extending };

/// Moves the focus by `delta` rows, but not beyond the ends. If the focused issue is not visible or there is none, a
/// move down starts before the first row and a move up after the last. An open inspector shows the newly focused issue.
Selection afterMove(Selection selection, int delta, FocusMove move, const VisiblePath &visibleKeys);

/// Checks all visible issues, besides those that are checked already.
Selection afterCheckVisible(Selection selection, const VisiblePath &visibleKeys);

/// The Return key: focuses the target and shows it in the inspector. Nothing if there is no target.
std::optional<Selection> afterOpen(Selection selection);
/// The space bar: shows the focused issue in the inspector, or closes the inspector if it shows this issue. Nothing if
/// no issue has the focus.
std::optional<Selection> afterPeek(Selection selection);
/// The command to show or hide the inspector: closes it, or opens it with the focused issue, else with the first
/// visible one.
Selection afterTogglePeek(Selection selection, const VisiblePath &visibleKeys);
/// The switch for the inspector. Switched on, it shows the focused issue unless it already shows one; switched off, it
/// closes.
Selection withInspectorShown(Selection selection);
Selection withInspectorHidden(Selection selection);

/// The effect of Escape: the first of these steps that is applicable.
enum class EscapeStep { ClearChecked, CloseInspector, ClearFilterText };

std::optional<EscapeStep> escapeStep(const Selection &selection, const QString &filterText);

/// The issue that Return opens: the focused one, else the one in the inspector.
std::optional<QString> openTarget(const Selection &selection);
/// The issues that a key or a menu acts on: the checked ones in plain text order, else the focused one, else the one in
/// the inspector.
QStringList actionTargets(const Selection &selection);
/// The issues that a context menu or a drag of one row acts on: the checked ones, in plain text order, when the row is
/// among them, else that row alone.
QStringList contextKeys(const Selection &selection, const QString &key);
