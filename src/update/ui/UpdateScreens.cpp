#include "update/ui/UpdateScreens.h"

#include "async/Spawn.h"
#include "async/WhileAlive.h"

#include <utility>

UpdateScreens::UpdateScreens(Updater &updater, SystemCalendar &calendar, QObject *parent)
    : QObject(parent), m_updater(updater), m_calendar(calendar)
{
    connect(&m_updater, &Updater::stateChanged, this, &UpdateScreens::followState);
    connect(&m_updater, &Updater::whatsNewChanged, this, &UpdateScreens::followWhatsNew);
    connect(&m_updater, &Updater::customFeedChanged, this, &UpdateScreens::feedChanged);
    connect(&m_updater, &Updater::lastCheckChanged, this, &UpdateScreens::lastCheckChanged);
    connect(&m_calendar, &SystemCalendar::changed, this, &UpdateScreens::lastCheckChanged);
    followState();
    followWhatsNew();
}

UpdateLabel UpdateScreens::badge() const
{
    return UpdateTexts::badge(m_updater.state()).value_or(UpdateLabel());
}

bool UpdateScreens::offersCheck() const
{
    switch (m_updater.state().kind()) {
    case UpdateState::Kind::Idle:
    case UpdateState::Kind::UpToDate:
    case UpdateState::Kind::Available:
    case UpdateState::Kind::Failed:
        return true;
    default:
        return false;
    }
}

QString UpdateScreens::footnote() const
{
    return UpdateTexts::footnote(m_updater.bundledFeedOrEmpty(), m_updater.customFeed());
}

QString UpdateScreens::feedPrompt() const
{
    return UpdateTexts::feedPrompt(m_updater.bundledFeedOrEmpty());
}

QString UpdateScreens::lastCheck() const
{
    const auto &time = m_updater.lastCheck();
    return time ? UpdateTexts::lastCheck(*time, m_calendar.current()) : QString();
}

QString UpdateScreens::whatsNewTitle() const
{
    return UpdateTexts::whatsNewTitle(m_updater.whatsNewOrEmpty().version);
}

void UpdateScreens::checkFromMenu()
{
    spawn(check());
}

QCoro::Task<> UpdateScreens::check()
{
    const auto alert = co_await whileAlive(this, m_updater.checkFromMenu());
    if (!alert)
        co_return;
    m_alert = *alert;
    Q_EMIT alertChanged();
    Q_EMIT alertRaised();
}

void UpdateScreens::pressBadge()
{
    if (offersInstall())
        m_updater.installAndRelaunch();
    else
        m_updater.downloadNow();
}

void UpdateScreens::acceptAlert()
{
    const auto alert = std::exchange(m_alert, std::nullopt);
    if (!alert)
        return;
    Q_EMIT alertChanged();
    if (!alert->buttons.isEmpty())
        m_updater.installAndRelaunch();
}

void UpdateScreens::dismissAlert()
{
    if (std::exchange(m_alert, std::nullopt))
        Q_EMIT alertChanged();
}

void UpdateScreens::openLink(const QString &address)
{
    Q_EMIT addressChosen(QUrl(address));
}

void UpdateScreens::followState()
{
    const QString text = m_updater.state().releaseOrEmpty().notesOrEmpty();
    if (text != m_notesText) {
        m_notesText = text;
        m_notes = UpdateTexts::notes(text);
        Q_EMIT notesChanged();
    }
    Q_EMIT stateChanged();
}

void UpdateScreens::followWhatsNew()
{
    m_whatsNewNotes = UpdateTexts::notes(m_updater.whatsNewOrEmpty().notesOrEmpty());
    Q_EMIT whatsNewChanged();
}
