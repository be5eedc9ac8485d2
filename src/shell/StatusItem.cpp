#include "shell/StatusItem.h"

#include "async/Spawn.h"
#include "shell/StatusIcons.h"

using namespace Qt::StringLiterals;

namespace {

using Kind = StatusMenuEntry::Kind;

/// Doubles each "&", because menus interpret a single one as the marker of a mnemonic.
QString menuText(QString text)
{
    return text.replace(u'&', u"&&"_s);
}

bool canBeChosen(Kind kind)
{
    return kind != Kind::Heading && kind != Kind::NoIssue;
}

} // namespace

StatusItem::StatusItem(AppStore &store) : m_store(store)
{
    connect(&m_store, &AppStore::phaseChanged, this, &StatusItem::refresh);
    connect(&m_store, &AppStore::myOpenIssuesChanged, this, &StatusItem::refresh);
    connect(&m_store, &AppStore::accentChoiceChanged, this, &StatusItem::refresh);
    refresh();
    m_icon.setToolTip(u"Velmora"_s);
    m_icon.setIcon(statusItemIcon());
    m_icon.setContextMenu(&m_menu);
    // A plain click, on desktops that report it.
    connect(&m_icon, &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason == QSystemTrayIcon::Trigger)
                    Q_EMIT mainWindowChosen();
            });
    m_icon.show();
}

void StatusItem::refresh()
{
    m_entries = statusMenu(m_store.phase(), m_store.myOpenIssues());
    m_menu.clear();
    for (const auto &entry : m_entries)
        append(entry);
}

void StatusItem::append(const StatusMenuEntry &entry)
{
    if (entry.kind == Kind::Divider) {
        m_menu.addSeparator();
        return;
    }
    auto *action = m_menu.addAction(menuText(entry.text));
    action->setEnabled(canBeChosen(entry.kind));
    if (entry.kind == Kind::Issue)
        action->setIcon(statusMenuIcon(entry.status, m_store.accentChoice()));
    if (entry.kind == Kind::Quit)
        action->setShortcut(QKeySequence::Quit);
    connect(action, &QAction::triggered, this, [this, entry] { carryOut(entry); });
}

void StatusItem::carryOut(const StatusMenuEntry &entry)
{
    switch (entry.kind) {
    case Kind::Issue:
        Q_EMIT issueChosen(entry.issueKey);
        return;
    case Kind::NewIssue:
        Q_EMIT newIssueChosen();
        return;
    case Kind::Refresh:
        spawn(m_store.refreshMyIssues());
        return;
    case Kind::ShowMain:
        Q_EMIT mainWindowChosen();
        return;
    case Kind::Quit:
        Q_EMIT quitChosen();
        return;
    case Kind::Heading:
    case Kind::NoIssue:
    case Kind::Divider:
        return;
    }
}
