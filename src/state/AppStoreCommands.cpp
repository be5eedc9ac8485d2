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
    // These may have nothing to do; the key press is then not consumed.
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
    default:
        if (const auto delta = stepOf(command))
            moveFocus(*delta, move);
        else if (!carryOutOnIssues(command, keys))
            carryOutInWindow(command);
        return true;
    }
}

/// The number of rows by which a command moves the focus. Nothing for other commands.
std::optional<int> AppStore::stepOf(Command command) const
{
    const int all = int(visiblePath().size());
    switch (command) {
    case Command::MoveDown:
        return 1;
    case Command::MoveUp:
        return -1;
    case Command::MovePageDown:
        return m_pageLength;
    case Command::MovePageUp:
        return -m_pageLength;
    case Command::MoveToFirst:
        return -all;
    case Command::MoveToLast:
        return all;
    default:
        return std::nullopt;
    }
}

/// Carries out a command on issues. False for other commands.
bool AppStore::carryOutOnIssues(Command command, const TargetKeys &keys)
{
    switch (command) {
    case Command::PickStatus:
    case Command::PickPriority:
    case Command::PickAssignee:
    case Command::PickLabels:
        openPicker(*pickerOf(command), keys);
        return true;
    case Command::AssignToMe:
        assignToMe(keys);
        return true;
    case Command::CopyKeys:
        copyKeys(targetsOrToast(keys));
        return true;
    case Command::CopyBranch:
        if (const auto key = firstOf(targetsOrToast(keys)))
            copyBranch(key);
        return true;
    case Command::CopyLink:
        if (const auto key = firstOf(targetsOrToast(keys)))
            copyLink(key);
        return true;
    case Command::OpenInBrowser:
        if (const auto key = firstOf(targetsOrToast(keys)))
            openInBrowser(key);
        return true;
    default:
        return false;
    }
}

/// Carries out a command that concerns the whole window.
void AppStore::carryOutInWindow(Command command)
{
    switch (command) {
    case Command::NewIssue:
        return newIssue();
    case Command::CheckVisible:
        return setSelection(afterCheckVisible(selection(), visiblePath()));
    case Command::ToggleInspector:
        return togglePeek();
    case Command::ShowList:
        return setLayout(LayoutMode::List);
    case Command::ShowBoard:
        return setLayout(LayoutMode::Board);
    case Command::ToggleCompleted:
        return setShowCompleted(!*m_showCompleted);
    case Command::TogglePalette:
        return togglePalette();
    case Command::CycleAppearance:
        return cycleAppearance();
    case Command::Reload:
        return refresh();
    case Command::OpenSettings:
        Q_EMIT settingsRequested();
        return;
    case Command::OpenShortcuts:
        Q_EMIT shortcutsRequested();
        return;
    case Command::CheckForUpdates:
        Q_EMIT updateCheckRequested();
        return;
    default:
        return;
    }
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
    // While the account is unknown, assigning to it would unassign the issues.
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
