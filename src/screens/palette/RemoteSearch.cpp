#include "screens/palette/RemoteSearch.h"

using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds TypingPause = 260ms;
constexpr qsizetype FewestCharacters = 2;

bool isLongEnough(const QString &text)
{
    return text.normalized(QString::NormalizationForm_C).toUcs4().size() >= FewestCharacters;
}

} // namespace

void RemoteSearch::setText(AppStore &store, const QString &text)
{
    const QString words = text.trimmed();
    if (!isLongEnough(words))
        return clear();
    cancel();
    m_pause = store.clock().after(TypingPause, [this, owner = QPointer(&store), words] {
        owner ? start(*owner, words) : cancel();
    });
}

void RemoteSearch::clear()
{
    cancel();
    setFound({});
}

void RemoteSearch::reset()
{
    clear();
    setIsSearching(false);
}

void RemoteSearch::start(AppStore &store, const QString &text)
{
    setIsSearching(true);
    m_task.start([owner = &store,
                  text](const std::stop_token &stop) { return owner->searchRemote(text, stop); },
                 [this](const LatestTask<IssueList>::Outcome &outcome) {
                     setFound(outcome.value_or(IssueList()));
                     setIsSearching(false);
                 });
}

void RemoteSearch::cancel()
{
    m_pause.reset();
    m_task.cancel();
}

void RemoteSearch::setFound(const IssueList &found)
{
    if (m_found == found)
        return;
    m_found = found;
    Q_EMIT foundChanged();
}

void RemoteSearch::setIsSearching(bool searching)
{
    if (std::exchange(m_isSearching, searching) != searching)
        Q_EMIT isSearchingChanged();
}
