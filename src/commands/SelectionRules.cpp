#include "commands/SelectionRules.h"

#include <algorithm>

namespace {

QStringList sorted(const QSet<QString> &keys)
{
    QStringList result(keys.cbegin(), keys.cend());
    result.sort();
    return result;
}

/// The row to move to, which may be outside the list.
qsizetype targetRow(const std::optional<QString> &focusedKey, int delta,
                    const VisiblePath &visibleKeys)
{
    const qsizetype row = focusedKey ? visibleKeys.indexOf(*focusedKey) : -1;
    if (row >= 0)
        return row + delta;
    return delta > 0 ? delta - 1 : visibleKeys.size() + delta;
}

Selection afterPlainClick(const QString &key)
{
    return {.focusedKey = key, .checked = {}, .inspectorKey = key};
}

} // namespace

ClickKind clickKind(Qt::KeyboardModifiers modifiers)
{
    if (modifiers.testFlag(Qt::ControlModifier))
        return ClickKind::Toggle;
    return modifiers.testFlag(Qt::ShiftModifier) ? ClickKind::Range : ClickKind::Plain;
}

Selection afterClick(Selection selection, const QString &key, ClickKind kind,
                     const VisiblePath &visibleKeys)
{
    if (kind == ClickKind::Plain || (kind == ClickKind::Range && !selection.focusedKey))
        return afterPlainClick(key);
    Selection result = kind == ClickKind::Toggle
                           ? afterToggleCheck(selection, key)
                           : afterCheckRange(selection, *selection.focusedKey, key, visibleKeys);
    result.focusedKey = key;
    return result;
}

Selection afterToggleCheck(Selection selection, const QString &key)
{
    if (!selection.checked.remove(key))
        selection.checked.insert(key);
    return selection;
}

Selection afterCheckRange(Selection selection, const QString &from, const QString &to,
                          const VisiblePath &visibleKeys)
{
    const auto [first, last] = std::minmax({visibleKeys.indexOf(from), visibleKeys.indexOf(to)});
    if (first < 0)
        return selection;
    for (qsizetype row = first; row <= last; ++row)
        selection.checked.insert(visibleKeys[row]);
    return selection;
}

Selection afterMove(Selection selection, int delta, FocusMove move, const VisiblePath &visibleKeys)
{
    if (visibleKeys.isEmpty())
        return selection;
    const qsizetype row = targetRow(selection.focusedKey, delta, visibleKeys);
    const QString target = visibleKeys[std::clamp<qsizetype>(row, 0, visibleKeys.size() - 1)];
    if (move == FocusMove::Extending) {
        const QString from = selection.focusedKey.value_or(target);
        selection = afterCheckRange(std::move(selection), from, target, visibleKeys);
        selection.checked += {from, target};
    }
    selection.focusedKey = target;
    if (selection.inspectorKey)
        selection.inspectorKey = target;
    return selection;
}

Selection afterCheckVisible(Selection selection, const VisiblePath &visibleKeys)
{
    if (visibleKeys.isEmpty())
        return selection;
    return afterCheckRange(std::move(selection), visibleKeys[0],
                           visibleKeys[visibleKeys.size() - 1], visibleKeys);
}

std::optional<Selection> afterOpen(Selection selection)
{
    const auto target = openTarget(selection);
    if (!target)
        return std::nullopt;
    selection.focusedKey = target;
    selection.inspectorKey = target;
    return selection;
}

std::optional<Selection> afterPeek(Selection selection)
{
    if (!selection.focusedKey)
        return std::nullopt;
    if (selection.inspectorKey == selection.focusedKey)
        selection.inspectorKey.reset();
    else
        selection.inspectorKey = selection.focusedKey;
    return selection;
}

Selection afterTogglePeek(Selection selection, const VisiblePath &visibleKeys)
{
    if (selection.inspectorKey)
        return withInspectorHidden(selection);
    if (!selection.focusedKey && !visibleKeys.isEmpty())
        selection.focusedKey = visibleKeys.front();
    return withInspectorShown(selection);
}

Selection withInspectorShown(Selection selection)
{
    if (!selection.inspectorKey)
        selection.inspectorKey = selection.focusedKey;
    return selection;
}

Selection withInspectorHidden(Selection selection)
{
    selection.inspectorKey.reset();
    return selection;
}

std::optional<EscapeStep> escapeStep(const Selection &selection, const QString &filterText)
{
    if (!selection.checked.isEmpty())
        return EscapeStep::ClearChecked;
    if (selection.inspectorKey)
        return EscapeStep::CloseInspector;
    if (!filterText.isEmpty())
        return EscapeStep::ClearFilterText;
    return std::nullopt;
}

std::optional<QString> openTarget(const Selection &selection)
{
    return selection.focusedKey ? selection.focusedKey : selection.inspectorKey;
}

QStringList actionTargets(const Selection &selection)
{
    if (!selection.checked.isEmpty())
        return sorted(selection.checked);
    const auto target = openTarget(selection);
    return target ? QStringList{*target} : QStringList();
}

QStringList contextKeys(const Selection &selection, const QString &key)
{
    return selection.checked.contains(key) ? sorted(selection.checked) : QStringList{key};
}
