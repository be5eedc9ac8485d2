#include "shell/Farewell.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Most writes end within it, and a window that shows up for a moment only would be a nuisance.
constexpr auto UnseenWait = 700ms;
/// After this time the user is told that the site does not answer.
constexpr auto LongestWait = 10s;
/// How long a message is shown when the system ends the program.
constexpr auto ReadingTime = 4s;

QString countText(int writes)
{
    return writes == 1 ? u"1 modification n'est pas encore enregistrée."_s
                       : u"%1 modifications ne sont pas encore enregistrées."_s.arg(writes);
}

} // namespace

Farewell::Farewell(Clock &clock, AppStore &store) : m_clock(clock), m_store(store)
{
    connect(&m_store.writes(), &PendingWrites::countChanged, this, [this] {
        Q_EMIT changed();
        endIfNothingIsLeft();
    });
    connect(&m_store, &AppStore::writeRefused, this, &Farewell::noteRefusal);
}

void Farewell::begin(Reason reason)
{
    if (m_stage != Stage::Idle)
        return;
    m_reason = reason;
    m_refusal.clear();
    setStage(Stage::Waiting);
    m_shownTimer = m_clock.after(UnseenWait, [this] { setStage(Stage::Sending); });
    m_overdueTimer = m_clock.after(LongestWait, [this] { setStage(Stage::Overdue); });
    endIfNothingIsLeft();
}

void Farewell::leave()
{
    if (m_stage == Stage::Idle)
        return;
    setStage(Stage::Idle);
    Q_EMIT ended();
}

void Farewell::stay()
{
    setStage(Stage::Idle);
}

QString Farewell::title() const
{
    switch (m_stage) {
    case Stage::Idle:
    case Stage::Waiting:
        break;
    case Stage::Sending:
        return u"Enregistrement en cours…"_s;
    case Stage::Overdue:
        return u"Jira ne répond pas"_s;
    case Stage::Refused:
        return u"Modification refusée"_s;
    }
    return {};
}

QString Farewell::text() const
{
    switch (m_stage) {
    case Stage::Idle:
    case Stage::Waiting:
        break;
    case Stage::Sending:
        return countText(m_store.writes().count()) + u" Velmora se ferme dès que c'est fait."_s;
    case Stage::Overdue:
        return countText(m_store.writes().count()) +
               u" Si tu quittes maintenant, tu risques de perdre ce travail."_s;
    case Stage::Refused:
        return m_refusal;
    }
    return {};
}

void Farewell::setStage(Stage stage)
{
    m_stage = stage;
    if (stage != Stage::Waiting && stage != Stage::Sending) {
        m_shownTimer.reset();
        m_overdueTimer.reset();
    }
    const bool isLastWord = stage == Stage::Overdue || stage == Stage::Refused;
    if (isLastWord && m_reason == Reason::System)
        m_endTimer = m_clock.after(ReadingTime, [this] { leave(); });
    else
        m_endTimer.reset();
    // The sheet opens in a window that is there already.
    if (isShown())
        Q_EMIT windowWanted();
    Q_EMIT changed();
}

void Farewell::endIfNothingIsLeft()
{
    const bool isWaiting = m_stage != Stage::Idle && m_stage != Stage::Refused;
    if (isWaiting && m_store.writes().count() == 0)
        leave();
}

void Farewell::noteRefusal(const QString &reason)
{
    if (m_stage == Stage::Idle)
        return;
    m_refusal = reason;
    setStage(Stage::Refused);
}
