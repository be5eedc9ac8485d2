#include "state/composing/DraftedComment.h"
#include "state/recap/ActivitySamples.h"

#include <QRandomGenerator>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Random sequences of typing, clicks, switches and late answers, beside a record of what the user has been shown.
class CommentDraftWalk : public DraftedComment, public testing::WithParamInterface<int>
{
protected:
    void SetUp() override { draft.setAllowsInternal(true); }

    int below(int end) { return random.bounded(end); }

    void step()
    {
        switch (below(13)) {
        case 0:
        case 1:
            return type(pieces[below(int(pieces.size()))]);
        case 2:
            return erase();
        case 3:
            return moveCaret(below(int(shown.size()) + 1));
        case 4:
            draft.take(CommentDraft::Key(below(4)));
            return;
        case 5:
            return draft.pick(below(7) - 1);
        case 6:
            return draft.beginMention();
        case 7:
            return switchReaders();
        case 8:
            isServiceProject = !isServiceProject;
            return draft.setAllowsInternal(isServiceProject);
        case 9:
            return clock.advance(std::chrono::milliseconds(below(400)));
        case 10:
            return answerASearch();
        case 11:
            return send();
        default:
            return answerTheSend();
        }
    }

    /// A click on one of the two buttons, which exist only in a service project or while a note is being written.
    void switchReaders()
    {
        if (!isServiceProject && !isNote)
            return;
        const bool wantsNote = below(2) == 0;
        draft.setAudience(wantsNote ? CommentAudience::Agents : CommentAudience::Everyone);
        isNote = wantsNote && (isServiceProject || isNote);
    }

    void answerASearch()
    {
        if (searches.count() == 0)
            return;
        auto &call = searches[below(searches.count())];
        if (call.isPending())
            call.finish({Sample::user(u"norbert"_s, u"Norbert"_s)});
    }

    void send()
    {
        const auto comment = draft.beginSending();
        ASSERT_EQ(comment.has_value(), !isSending && !shown.trimmed().isEmpty());
        if (!comment)
            return;
        isSending = true;
        isNoteBeingSent = isNote;
        ++sent;
        notes += isNote ? 1 : 0;
        ASSERT_EQ(comment->audience == CommentAudience::Agents, isNote);
        ASSERT_EQ(comment->text, shown.trimmed());
    }

    void answerTheSend()
    {
        const QString before = shown;
        const bool remains = draft.unsentText() == shown;
        const bool isPosted = below(2) == 0;
        draft.endSending(isPosted);
        if (!isSending || !isPosted)
            ASSERT_EQ(shown, before);
        // A note that remains in the editor is still one.
        if (isSending && isNoteBeingSent && (remains || !isPosted))
            isNote = isNote || !shown.trimmed().isEmpty();
        isSending = false;
    }

    const QStringList pieces{u"a"_s, u"@"_s, u" "_s, u"\n"_s, u"@no"_s, u"nora"_s, u"é"_s};
    QRandomGenerator random{quint32(GetParam())};
    bool isServiceProject = true;
    /// The button "Note interne" was chosen last.
    bool isNote = false;
    bool isSending = false;
    bool isNoteBeingSent = false;
    int sent = 0;
    int notes = 0;
};

TEST_P(CommentDraftWalk, AnInternalNoteNeverLeavesWithoutItsMarkingAndTheEditorShowsTheDraft)
{
    for (int i = 0; i < 3000; ++i) {
        step();
        ASSERT_FALSE(HasFatalFailure()) << "at step " << i;
        ASSERT_EQ(draft.audience() == CommentAudience::Agents, isNote) << "at step " << i;
        ASSERT_EQ(draft.text(), shown) << "at step " << i;
        ASSERT_EQ(draft.caret(), shownCaret) << "at step " << i;
        ASSERT_EQ(draft.isSending(), isSending) << "at step " << i;
        ASSERT_TRUE(draft.suggestions().isEmpty() ||
                    draft.highlighted() < draft.suggestions().size());
    }
    EXPECT_GT(notes, 0);
    EXPECT_GT(sent, notes);
}

INSTANTIATE_TEST_SUITE_P(Seeds, CommentDraftWalk, testing::Range(1, 21));
