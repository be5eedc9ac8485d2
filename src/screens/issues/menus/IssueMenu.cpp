#include "screens/issues/menus/IssueMenu.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Submenu
{
    QLatin1StringView id;
    PickerKind kind;
    QStringView title;
};

constexpr std::array submenus{Submenu{"status"_L1, PickerKind::Status, u"Statut"},
                              Submenu{"priority"_L1, PickerKind::Priority, u"Priorité"},
                              Submenu{"assignee"_L1, PickerKind::Assignee, u"Assigner"},
                              Submenu{"labels"_L1, PickerKind::Labels, u"Étiquettes"}};

bool ticksChoices(PickerKind kind)
{
    return kind == PickerKind::Labels;
}

QList<MenuChoice> optionChoices(PickerKind kind, const QList<OptionItem> &options)
{
    QList<MenuChoice> choices;
    for (const auto &option : options)
        choices += {option.id, option.title, option.icon, ticksChoices(kind) && option.isSelected,
                    option.run};
    return choices;
}

/// The first option stands for no assignee. The menu has a separate text entry for it.
QList<MenuChoice> assigneeChoices(const QList<OptionItem> &options, const QStringList &keys)
{
    QList<MenuChoice> choices{{u"assign:me"_s, u"M'assigner"_s,
                               OptionIcon{OptionIcon::Symbol{u"person.fill.checkmark"_s}}, false,
                               OptionAction{OptionAction::RunCommand{Command::AssignToMe, keys}}},
                              {options.front().id, u"Retirer l'assignation"_s,
                               OptionIcon{OptionIcon::Symbol{u"person.slash"_s}}, false,
                               options.front().run}};
    auto people = optionChoices(PickerKind::Assignee, options.sliced(1));
    if (!people.isEmpty())
        people.front().startsGroup = true;
    return choices + people;
}

} // namespace

QList<MenuSection> issueMenuSections(const AppStore &store, const QStringList &keys)
{
    QList<MenuSection> sections;
    for (const auto &submenu : submenus) {
        const auto options = store.options(submenu.kind, keys);
        const auto choices = submenu.kind == PickerKind::Assignee
                                 ? assigneeChoices(options, keys)
                                 : optionChoices(submenu.kind, options);
        if (!choices.isEmpty() || submenu.kind != PickerKind::Labels)
            sections += {submenu.id, submenu.title.toString(), choices};
    }
    return sections;
}

QString IssueMenu::copyKeysTitle() const
{
    return u"Copier les %1 clés"_s.arg(m_keys.size());
}

void IssueMenu::prepare(const QString &key)
{
    if (!m_store)
        return;
    m_keys = m_store->contextKeys(key);
    m_sections = issueMenuSections(*m_store, m_keys);
    Q_EMIT changed();
}

void IssueMenu::choose(const MenuChoice &choice)
{
    if (m_store)
        m_store->run(choice.run);
}

void IssueMenu::run(Commands::Command command)
{
    if (m_store)
        m_store->run(command, m_keys);
}
