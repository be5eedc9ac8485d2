#include "state/palette/PaletteActions.h"

#include "commands/AppearanceWords.h"
#include "commands/CommandTable.h"
#include "commands/PickerWords.h"

using namespace Qt::StringLiterals;

namespace {

OptionItem actionItem(const QString &id, const QString &title, const QString &symbol,
                      OptionAction::RunCommand run)
{
    return {
        .id = id, .title = title, .icon = {OptionIcon::Symbol{symbol}}, .run = {std::move(run)}};
}

/// The row of a command, with the command's title in the menus.
OptionItem commandItem(const QString &id, Command command, const QString &symbol,
                       const std::optional<QStringList> &targets = {})
{
    return actionItem(id, commandTitle(command), symbol, {command, targets});
}

OptionItem pickerItem(const QString &id, PickerKind kind, const QString &symbol,
                      const QStringList &targets)
{
    OptionItem item = actionItem(id, pickerActionTitle(kind), symbol, {pickCommand(kind), targets});
    item.keepsOpen = true;
    return item;
}

QList<OptionItem> itemsForIssues(const QStringList &targets)
{
    if (targets.isEmpty())
        return {};
    return {pickerItem(u"status"_s, PickerKind::Status, u"circle.dashed"_s, targets),
            pickerItem(u"priority"_s, PickerKind::Priority, u"chart.bar.fill"_s, targets),
            pickerItem(u"assignee"_s, PickerKind::Assignee, u"person.crop.circle"_s, targets),
            commandItem(u"me"_s, Command::AssignToMe, u"person.fill.checkmark"_s, targets),
            pickerItem(u"labels"_s, PickerKind::Labels, u"tag"_s, targets),
            commandItem(u"copy-key"_s, Command::CopyKeys, u"number"_s, targets)};
}

QList<OptionItem> itemsForOneIssue(const QStringList &targets)
{
    if (targets.size() != 1)
        return {};
    return {commandItem(u"copy-branch"_s, Command::CopyBranch, u"arrow.triangle.branch"_s, targets),
            commandItem(u"copy-link"_s, Command::CopyLink, u"link"_s, targets),
            commandItem(u"browser"_s, Command::OpenInBrowser, u"safari"_s, targets),
            commandItem(u"window"_s, Command::OpenWindow, u"macwindow.on.rectangle"_s, targets)};
}

OptionItem layoutItem(LayoutMode layout)
{
    const bool isBoard = layout == LayoutMode::Board;
    OptionItem item = isBoard
                          ? commandItem(u"layout"_s, Command::ShowList, u"list.bullet"_s)
                          : commandItem(u"layout"_s, Command::ShowBoard, u"rectangle.split.3x1"_s);
    item.shortcut = isBoard ? u"1"_s : u"2"_s;
    return item;
}

QList<OptionItem> itemsForTheWindow(const PaletteActionInputs &inputs)
{
    const QString completed = inputs.showCompleted ? u"Masquer les tickets terminés"_s
                                                   : u"Afficher les tickets terminés"_s;
    const QString appearance =
        u"Changer l'apparence ("_s + appearanceLabel(inputs.appearance) + u')';
    return {layoutItem(inputs.layout),
            actionItem(u"completed"_s, completed, u"checkmark.circle"_s,
                       {Command::ToggleCompleted, {}}),
            actionItem(u"appearance"_s, appearance, u"circle.lefthalf.filled"_s,
                       {Command::CycleAppearance, {}}),
            commandItem(u"reload"_s, Command::Reload, u"arrow.clockwise"_s),
            commandItem(u"settings"_s, Command::OpenSettings, u"gear"_s),
            commandItem(u"updates"_s, Command::CheckForUpdates, u"arrow.triangle.2.circlepath"_s)};
}

} // namespace

QList<OptionItem> paletteActions(const PaletteActionInputs &inputs)
{
    const QList newIssue{commandItem(u"new"_s, Command::NewIssue, u"square.and.pencil"_s)};
    return newIssue + itemsForIssues(inputs.targets) + itemsForOneIssue(inputs.targets) +
           itemsForTheWindow(inputs);
}
