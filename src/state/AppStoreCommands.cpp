#include "commands/CommandTable.h"
#include "commands/KeyRouting.h"
#include "state/AppStore.h"

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> firstOf(const std::optional<QStringList> &keys)
{
    return keys && !keys->isEmpty() ? std::optional(keys->front()) : std::nullopt;
}

} // namespace

bool AppStore::handleKey(const KeyPress &press)
{
    const auto command = route(press);
    const auto move = press.isShiftHeld() ? FocusMove::Extending : FocusMove::Plain;
    return command && carryOut(*command, {}, move);
}

void AppStore::run(Command command)
{
    carryOut(command, {}, FocusMove::Plain);
}

void AppStore::run(Command command, QStringList keys)
{
    carryOut(command, std::move(keys), FocusMove::Plain);
}

bool AppStore::carryOut(Command command, const TargetKeys &keys, FocusMove move)
{
    switch (command) {
    // These find nothing to do at times; a key is then left to others.
    case Command::OpenIssue:
        return openIssue(keys);
    case Command::OpenWindow:
        return requestWindow(keys);
    case Command::Peek:
        return takeSelection(afterPeek(selection()));
    case Command::Escape:
        return escape();
    case Command::ToggleCheck:
        return toggleFocusedCheck();
    case Command::MoveDown:
        moveFocus(1, move);
        break;
    case Command::MoveUp:
        moveFocus(-1, move);
        break;
    case Command::NewIssue:
        newIssue();
        break;
    case Command::ToggleInspector:
        togglePeek();
        break;
    case Command::PickStatus:
    case Command::PickPriority:
    case Command::PickAssignee:
    case Command::PickLabels:
        openPicker(*pickerOf(command), keys);
        break;
    case Command::AssignToMe:
        assignToMe(keys);
        break;
    case Command::CopyKeys:
        copyKeys(keys);
        break;
    case Command::CopyBranch:
        copyBranch(firstOf(keys));
        break;
    case Command::CopyLink:
        copyLink(firstOf(keys));
        break;
    case Command::OpenInBrowser:
        openInBrowser(firstOf(keys));
        break;
    case Command::ShowList:
        setLayout(LayoutMode::List);
        break;
    case Command::ShowBoard:
        setLayout(LayoutMode::Board);
        break;
    case Command::ToggleCompleted:
        setShowCompleted(!*m_showCompleted);
        break;
    case Command::TogglePalette:
        togglePalette();
        break;
    case Command::CycleAppearance:
        cycleAppearance();
        break;
    case Command::Reload:
        refresh();
        break;
    case Command::OpenSettings:
        Q_EMIT settingsRequested();
        break;
    }
    return true;
}

void AppStore::openPicker(PickerKind kind, const TargetKeys &keys)
{
    if (const auto targets = targetsOrToast(keys); !targets.isEmpty())
        m_palette.set(PaletteMode::picker(kind, targets));
}

void AppStore::togglePalette()
{
    m_palette.set(*m_palette ? std::nullopt : std::optional(PaletteMode::root()));
}

void AppStore::assignToMe(const TargetKeys &keys)
{
    const auto targets = targetsOrToast(keys);
    // While the account is unknown, assigning to it would take everybody off.
    if (!*m_me && !targets.isEmpty())
        toast(u"Ton compte Jira n'a pas encore pu être lu. Actualise la liste."_s,
              u"exclamationmark.triangle.fill"_s, ToastKind::Error);
    else if (!targets.isEmpty())
        assign(targets, *m_me);
}

QStringList AppStore::targetsOrToast(const TargetKeys &keys)
{
    const auto targets = keys ? *keys : actionTargets();
    if (targets.isEmpty())
        toast(u"Sélectionne d'abord un ticket"_s, u"hand.point.up.left"_s);
    return targets;
}

bool AppStore::takeSelection(const std::optional<Selection> &next)
{
    if (next)
        setSelection(*next);
    return next.has_value();
}

bool AppStore::openIssue(const TargetKeys &keys)
{
    if (!keys)
        return takeSelection(afterOpen(selection()));
    if (!keys->isEmpty())
        openInInspector(keys->front());
    return !keys->isEmpty();
}

bool AppStore::requestWindow(const TargetKeys &keys)
{
    const auto key = keys ? firstOf(keys) : openTarget(selection());
    if (key)
        Q_EMIT openWindowRequested(*key);
    return key.has_value();
}

bool AppStore::toggleFocusedCheck()
{
    const auto key = *m_focusedKey;
    if (key)
        toggleCheck(*key);
    return key.has_value();
}

bool AppStore::escape()
{
    const auto step = escapeStep(selection(), *m_filterText);
    if (!step)
        return false;
    switch (*step) {
    case EscapeStep::ClearChecked:
        m_checked.set({});
        break;
    case EscapeStep::CloseInspector:
        m_inspectorKey.set(std::nullopt);
        break;
    case EscapeStep::ClearFilterText:
        m_filterText.set({});
        break;
    }
    return true;
}
