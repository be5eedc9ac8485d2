#include "state/composing/DraftedComment.h"

#include "state/recap/ActivitySamples.h"

using namespace Qt::StringLiterals;
using Sample::user;

DraftedComment::DraftedComment()
    : known{user(u"noam"_s, u"Noam Tessier"_s), user(u"nora"_s, u"Nora Vidal"_s),
            user(u"maud"_s, u"Maud Nogaret"_s), user(u"lea"_s, u"Léa"_s)},
      draft({.clock = clock,
             .candidates = [this] { return known; },
             .search = [this](const QString &words,
                              const std::stop_token &stop) { return searches.call(stop, words); }})
{
    QObject::connect(&draft, &CommentDraft::replaced, &draft,
                     [this](int start, int end, const QString &words, int caret) {
                         shown.replace(start, end - start, words);
                         shownCaret = caret;
                     });
}

DraftedComment::~DraftedComment()
{
    searches.cancelPending();
}

void DraftedComment::type(const QString &words)
{
    for (const QChar character : words) {
        shown.insert(shownCaret, character);
        ++shownCaret;
        draft.edit(shown, shownCaret);
    }
}

void DraftedComment::erase()
{
    if (shownCaret == 0)
        return;
    shown.remove(--shownCaret, 1);
    draft.edit(shown, shownCaret);
}

void DraftedComment::moveCaret(qsizetype caret)
{
    shownCaret = caret;
    draft.edit(shown, caret);
}

QStringList DraftedComment::suggested() const
{
    QStringList ids;
    for (const JiraUser &each : draft.suggestions())
        ids.append(each.id);
    return ids;
}
