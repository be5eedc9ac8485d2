#include "state/composing/MentionSearch.h"

using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds TypingPause = 250ms;
constexpr qsizetype FewestCharacters = 2;

bool isSearched(const std::optional<QString> &words)
{
    return words && !words->contains(u' ') &&
           words->normalized(QString::NormalizationForm_C).toUcs4().size() >= FewestCharacters;
}

} // namespace

MentionSearch::MentionSearch(Clock &clock, Search search, std::function<void()> onFound)
    : m_clock(clock), m_search(std::move(search)), m_onFound(std::move(onFound))
{
}

void MentionSearch::setWords(const std::optional<QString> &words)
{
    if (m_words == words)
        return;
    m_words = words;
    m_pause.reset();
    m_task.cancel();
    if (!isSearched(words))
        return setFound({});
    m_pause = m_clock.after(TypingPause, [this, sent = *words] { start(sent); });
}

void MentionSearch::clear()
{
    m_pause.reset();
    m_task.cancel();
    setFound({});
}

void MentionSearch::start(const QString &words)
{
    m_task.start(
        [search = m_search, words](const std::stop_token &stop) { return search(words, stop); },
        [this](const LatestTask<QList<JiraUser>>::Outcome &outcome) {
            setFound(outcome.value_or(QList<JiraUser>()));
        });
}

void MentionSearch::setFound(const QList<JiraUser> &found)
{
    if (m_found == found)
        return;
    m_found = found;
    m_onFound();
}
