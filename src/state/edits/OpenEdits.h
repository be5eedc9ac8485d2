#pragma once

#include "model/Comment.h"
#include "state/edits/OptimisticEdit.h"

#include <QDateTime>
#include <QHash>

#include <chrono>
#include <memory>
#include <vector>

/// The edits of a session that answers of the site may not show yet.
///
/// A request that began before an edit was confirmed may bring the old value. A search may do so for some time after
/// that, because the search index of a site lags behind what is written. The edits that such an answer may lack are
/// applied to its records, so that no edit seems to be undone. A refused edit is reverted to the newest value that the
/// site returned. Nothing is stored on disk, and nothing is sent again.
class OpenEdits
{
public:
    /// How long the answer of a search may lack a confirmed edit or a created issue. Jira documents that its search
    /// lags by seconds to minutes.
    static constexpr std::chrono::minutes SearchLag{3};

    /// What a record was read from: the search index, or the issue itself.
    enum class Source { Search, Issue };
    using Id = quint64;

    /// A request that reads issues. Must exist until its answer has been passed to `laidOver`.
    class Reading
    {
    public:
        /// When the request began.
        const QDateTime &beganAt() const { return m_start->at; }
        /// Whether a confirmation came after the request began.
        bool isOlderThan(quint64 confirmation) const
        {
            return m_start->confirmations < confirmation;
        }

    private:
        friend class OpenEdits;
        struct Start
        {
            quint64 confirmations;
            QDateTime at;
        };
        explicit Reading(Start start) : m_start(std::make_shared<const Start>(std::move(start))) {}

        std::shared_ptr<const Start> m_start;
    };
    Reading beginReading(const QDateTime &now);

    /// Notes an edit that is shown and about to be sent. `updated` is the date of the record that it changes.
    Id open(const OptimisticEdit &edit, const QDateTime &updated);
    /// The site has taken the edit. Gives what all copies of the issue are to show: nothing while a later edit of the
    /// same field is open.
    std::optional<OptimisticEdit> confirm(Id id, const QDateTime &now);
    /// The same for a status, where the workflow determines the `reached` status.
    std::optional<OptimisticEdit> confirm(Id id, const IssueStatus &reached, const QDateTime &now);
    /// The site has refused the edit. Gives what all copies of the issue are to show: the value of the previous edit
    /// that is still open, else the newest value that the site returned.
    OptimisticEdit refuse(Id id);
    /// Notes what the site has stored before it was shown.
    void noteStored(const OptimisticEdit &edit, const QDateTime &now);
    void noteComment(const QString &key, const Comment &comment);
    void noteCreated(const QString &key, const QDateTime &now);

    /// The record of an answer, with the edits applied that it may lack. Also notes the site's values for the fields
    /// with open edits.
    SharedIssue laidOver(const SharedIssue &issue, const Reading &reading, Source source);
    IssueList laidOver(IssueList issues, const Reading &reading, Source source);
    /// The comments of an issue, with those that were posted after the request began.
    QList<Comment> laidOver(QList<Comment> comments, const QString &key,
                            const Reading &reading) const;
    /// Whether the answer may describe an issue as it was before a change of its status.
    bool mayLackStatus(const QString &key, const Reading &reading) const;
    /// Whether a search that began at this time may lack the issue because it was created a short time before.
    bool isJustCreated(const QString &key, const QDateTime &beganAt) const;

private:
    struct Pending
    {
        Id id;
        OptimisticEdit edit;
    };
    /// A field of an issue with edits.
    struct Field
    {
        /// In the order in which they were made. The `before` value of the first is the newest value that the site
        /// returned.
        std::vector<Pending> pending;
        /// Its `after` value is the one that the copies of the issue show.
        OptimisticEdit shown;
        /// When the newest value that the site returned was written; invalid if there is none.
        QDateTime toldAt;
        /// The number of the newest confirmation, from 1; 0 while there is none.
        quint64 confirmation = 0;
        QDateTime confirmedAt;
    };
    using Fields = std::vector<Field>;
    struct PostedComment
    {
        Comment comment;
        quint64 confirmation;
    };

    Field &fieldOf(const OptimisticEdit &edit);
    Field &fieldOf(Id id);
    void noteConfirmation(Field &field, const QDateTime &now);
    void learn(Field &field, const Issue &issue, const Reading &reading, Source source);
    static bool isLacking(const Field &field, const Reading &reading, Source source);
    void forgetOld(const QDateTime &now);

    /// By issue key.
    QHash<QString, Fields> m_fields;
    QHash<QString, std::vector<PostedComment>> m_comments;
    QHash<QString, QDateTime> m_created;
    std::vector<std::weak_ptr<const Reading::Start>> m_readings;
    quint64 m_confirmations = 0;
    Id m_lastId = 0;
};
