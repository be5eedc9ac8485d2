#include "commands/KeyRouting.h"
#include "state/AppStore.h"

using namespace Qt::StringLiterals;

bool AppStore::handleKey(const KeyPress &press)
{
    const auto command = route(press);
    return command && run(*command, press.isShiftHeld() ? FocusMove::Extending : FocusMove::Plain);
}

bool AppStore::handleShortcut(const KeyPress &press)
{
    const auto command = shortcutCommand(press);
    const bool isDisabled = command == AppCommand::NewIssue && *m_phase != Phase::Ready;
    if (!command || isDisabled)
        return false;
    run(*command);
    return true;
}

bool AppStore::run(KeyCommand command, FocusMove move)
{
    switch (command) {
    case KeyCommand::OpenInspector:
        return takeSelection(afterOpen(selection()));
    case KeyCommand::OpenWindow:
        return requestWindow();
    case KeyCommand::Peek:
        return takeSelection(afterPeek(selection()));
    case KeyCommand::Escape:
        return escape();
    case KeyCommand::ToggleCheck:
        return toggleFocusedCheck();
    case KeyCommand::MoveDown:
        moveFocus(1, move);
        return true;
    case KeyCommand::MoveUp:
        moveFocus(-1, move);
        return true;
    case KeyCommand::NewIssue:
        newIssue();
        return true;
    case KeyCommand::PickStatus:
        openPicker(PickerKind::Status);
        return true;
    case KeyCommand::PickPriority:
        openPicker(PickerKind::Priority);
        return true;
    case KeyCommand::PickAssignee:
        openPicker(PickerKind::Assignee);
        return true;
    case KeyCommand::PickLabels:
        openPicker(PickerKind::Labels);
        return true;
    case KeyCommand::AssignToMe:
        assignToMe();
        return true;
    case KeyCommand::ShowList:
        setLayout(LayoutMode::List);
        return true;
    case KeyCommand::ShowBoard:
        setLayout(LayoutMode::Board);
        return true;
    }
    return false;
}

void AppStore::run(AppCommand command)
{
    switch (command) {
    case AppCommand::NewIssue:
        return newIssue();
    case AppCommand::CommandPalette:
        return togglePalette();
    case AppCommand::Reload:
        return refresh();
    case AppCommand::ChangeStatus:
        return openPicker(PickerKind::Status);
    case AppCommand::ChangePriority:
        return openPicker(PickerKind::Priority);
    case AppCommand::ChangeAssignee:
        return openPicker(PickerKind::Assignee);
    case AppCommand::AssignToMe:
        return assignToMe();
    case AppCommand::ChangeLabels:
        return openPicker(PickerKind::Labels);
    case AppCommand::CopyKey:
        return copyKeys();
    case AppCommand::CopyBranch:
        return copyBranch();
    case AppCommand::CopyLink:
        return copyLink();
    case AppCommand::OpenInBrowser:
        return openInBrowser();
    case AppCommand::ShowList:
        return setLayout(LayoutMode::List);
    case AppCommand::ShowBoard:
        return setLayout(LayoutMode::Board);
    case AppCommand::TogglePeek:
        return togglePeek();
    }
}

void AppStore::openPicker(PickerKind kind)
{
    if (const auto keys = targetsOrToast(); !keys.isEmpty())
        m_palette.set(PaletteMode::picker(kind, keys));
}

void AppStore::togglePalette()
{
    m_palette.set(*m_palette ? std::nullopt : std::optional(PaletteMode::root()));
}

void AppStore::assignToMe()
{
    if (const auto keys = targetsOrToast(); !keys.isEmpty())
        assignToMe(keys);
}

void AppStore::assignToMe(const QStringList &keys)
{
    // While the account is unknown, assigning to it would take everybody off.
    if (!*m_me)
        return toast(u"Ton compte Jira n'a pas encore pu être lu. Actualise la liste."_s,
                     u"exclamationmark.triangle.fill"_s, ToastKind::Error);
    assign(keys, *m_me);
}

QStringList AppStore::targetsOrToast()
{
    const auto keys = actionTargets();
    if (keys.isEmpty())
        toast(u"Sélectionne d'abord un ticket"_s, u"hand.point.up.left"_s);
    return keys;
}

bool AppStore::takeSelection(const std::optional<Selection> &next)
{
    if (next)
        setSelection(*next);
    return next.has_value();
}

bool AppStore::requestWindow()
{
    const auto key = openTarget(selection());
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
