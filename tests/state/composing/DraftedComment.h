#pragma once

#include "state/composing/CommentDraft.h"
#include "support/ManualClock.h"
#include "support/ScriptedCall.h"

#include <gtest/gtest.h>

/// A draft with an editor that shows what it requests, known users, and a server that answers when a test says so.
class DraftedComment : public testing::Test
{
protected:
    DraftedComment();
    ~DraftedComment() override;

    /// Types at the caret, one character after the other.
    void type(const QString &words);
    void erase();
    void moveCaret(qsizetype caret);
    QStringList suggested() const;

    ManualClock clock;
    QList<JiraUser> known;
    ScriptedCalls<QList<JiraUser>, QString> searches;
    CommentDraft draft;
    /// What the editor shows.
    QString shown;
    qsizetype shownCaret = 0;
};
