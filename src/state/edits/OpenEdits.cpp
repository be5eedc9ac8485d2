#include "state/edits/OpenEdits.h"

#include <algorithm>

namespace {

/// Whether records of this source have the edited field. Lists have neither descriptions nor attachments.
bool isPartOf(const OptimisticEdit &edit, OpenEdits::Source source)
{
    if (source == OpenEdits::Source::Issue)
        return true;
    return !std::holds_alternative<FieldEdit<&Issue::description>>(edit.change) &&
           !std::holds_alternative<AttachmentRemoval>(edit.change) &&
           !std::holds_alternative<AttachmentAddition>(edit.change);
}

/// Whether a search that began at this time may lack what was written.
bool mayLack(const QDateTime &written, const QDateTime &beganAt)
{
    return written.isValid() && written.addDuration(OpenEdits::SearchLag) > beganAt;
}

} // namespace

OpenEdits::Reading OpenEdits::beginReading(const QDateTime &now)
{
    forgetOld(now);
    const Reading reading({m_confirmations, now});
    m_readings.push_back(reading.m_start);
    return reading;
}

OpenEdits::Id OpenEdits::open(const OptimisticEdit &edit, const QDateTime &updated)
{
    Field &field = fieldOf(edit);
    if (field.pending.empty() && field.confirmation == 0)
        field.toldAt = updated;
    field.pending.push_back({++m_lastId, edit});
    field.shown = edit;
    return m_lastId;
}

std::optional<OptimisticEdit> OpenEdits::confirm(Id id, const QDateTime &now)
{
    Field &field = fieldOf(id);
    const auto at = std::ranges::find(field.pending, id, &Pending::id);
    OptimisticEdit confirmed = at->edit;
    Issue told;
    confirmed.apply(told);
    field.pending.erase(at);
    noteConfirmation(field, now);
    field.toldAt = {};
    if (field.pending.empty()) {
        field.shown = confirmed;
        return confirmed;
    }
    field.pending.front().edit.setBefore(told);
    return std::nullopt;
}

std::optional<OptimisticEdit> OpenEdits::confirm(Id id, const IssueStatus &reached,
                                                 const QDateTime &now)
{
    Field &field = fieldOf(id);
    const auto at = std::ranges::find(field.pending, id, &Pending::id);
    std::get<StatusEdit>(at->edit.change).status.after = reached;
    return confirm(id, now);
}

OptimisticEdit OpenEdits::refuse(Id id)
{
    Field &field = fieldOf(id);
    const auto at = std::ranges::find(field.pending, id, &Pending::id);
    const OptimisticEdit undone = at->edit.reversed();
    const auto next = field.pending.erase(at);
    if (next != field.pending.end()) {
        Issue before;
        undone.apply(before);
        next->edit.setBefore(before);
    }
    field.shown = undone;
    if (field.pending.empty() && field.confirmation == 0) {
        Fields &fields = m_fields[undone.key];
        std::erase_if(fields, [&](const Field &other) { return &other == &field; });
    }
    return undone;
}

void OpenEdits::noteStored(const OptimisticEdit &edit, const QDateTime &now)
{
    Field &field = fieldOf(edit);
    field.shown = edit;
    noteConfirmation(field, now);
}

void OpenEdits::noteComment(const QString &key, const Comment &comment)
{
    m_comments[key].push_back({comment, ++m_confirmations});
}

void OpenEdits::noteCreated(const QString &key, const QDateTime &now)
{
    m_created.insert(key, now);
}

SharedIssue OpenEdits::laidOver(const SharedIssue &issue, const Reading &reading, Source source)
{
    const auto fields = m_fields.find(issue->key);
    if (fields == m_fields.end())
        return issue;
    std::optional<Issue> changed;
    for (Field &field : *fields) {
        if (!isPartOf(field.shown, source))
            continue;
        learn(field, *issue, reading, source);
        if (!isLacking(field, reading, source))
            continue;
        if (!changed)
            changed = *issue;
        field.shown.layOver(*changed);
    }
    return changed ? SharedIssue(*std::move(changed)) : issue;
}

IssueList OpenEdits::laidOver(IssueList issues, const Reading &reading, Source source)
{
    if (m_fields.isEmpty())
        return issues;
    for (SharedIssue &issue : issues)
        issue = laidOver(issue, reading, source);
    return issues;
}

QList<Comment> OpenEdits::laidOver(QList<Comment> comments, const QString &key,
                                   const Reading &reading) const
{
    const auto posted = m_comments.constFind(key);
    if (posted == m_comments.cend())
        return comments;
    for (const PostedComment &own : *posted) {
        const bool isThere = std::ranges::any_of(
            comments, [&](const Comment &other) { return other.id == own.comment.id; });
        if (!isThere && reading.isOlderThan(own.confirmation))
            comments += own.comment;
    }
    return comments;
}

bool OpenEdits::mayLackStatus(const QString &key, const Reading &reading) const
{
    const auto fields = m_fields.constFind(key);
    return fields != m_fields.cend() && std::ranges::any_of(*fields, [&](const Field &field) {
               return std::holds_alternative<StatusEdit>(field.shown.change) &&
                      (!field.pending.empty() || reading.isOlderThan(field.confirmation));
           });
}

bool OpenEdits::isJustCreated(const QString &key, const QDateTime &beganAt) const
{
    return mayLack(m_created.value(key), beganAt);
}

OpenEdits::Field &OpenEdits::fieldOf(const OptimisticEdit &edit)
{
    Fields &fields = m_fields[edit.key];
    const auto known = std::ranges::find_if(
        fields, [&](const Field &field) { return field.shown.hasSameTarget(edit); });
    return known == fields.end() ? fields.emplace_back(Field{{}, edit, {}, 0, {}}) : *known;
}

OpenEdits::Field &OpenEdits::fieldOf(Id id)
{
    for (Fields &fields : m_fields) {
        for (Field &field : fields) {
            if (std::ranges::find(field.pending, id, &Pending::id) != field.pending.end())
                return field;
        }
    }
    Q_UNREACHABLE();
}

void OpenEdits::noteConfirmation(Field &field, const QDateTime &now)
{
    field.confirmation = ++m_confirmations;
    field.confirmedAt = now;
}

/// If the site returned several values, the one from the record with the latest date is kept.
void OpenEdits::learn(Field &field, const Issue &issue, const Reading &reading, Source source)
{
    const bool isOutdated = reading.isOlderThan(field.confirmation) ||
                            (field.toldAt.isValid() && issue.updated < field.toldAt);
    if (isOutdated)
        return;
    if (!field.pending.empty()) {
        // The answer of a search may still lack the confirmed edit that precedes the open ones.
        if (source == Source::Search && field.confirmation != 0)
            return;
        field.toldAt = issue.updated;
        field.pending.front().edit.setBefore(issue);
    } else if (field.shown.isShownBy(issue)) {
        field.toldAt = issue.updated;
    } else if (source == Source::Issue ||
               (field.toldAt.isValid() && issue.updated > field.toldAt)) {
        // Another user has changed the field since.
        field.toldAt = issue.updated;
        field.shown.setAfter(issue);
    }
}

bool OpenEdits::isLacking(const Field &field, const Reading &reading, Source source)
{
    if (!field.pending.empty() || reading.isOlderThan(field.confirmation))
        return true;
    return source == Source::Search && mayLack(field.confirmedAt, reading.beganAt());
}

/// Deletes the entries that no pending or future request can lack.
void OpenEdits::forgetOld(const QDateTime &now)
{
    std::erase_if(m_readings, [](const auto &reading) { return reading.expired(); });
    quint64 confirmations = m_confirmations;
    QDateTime oldest = now;
    for (const auto &reading : m_readings) {
        const auto start = reading.lock();
        confirmations = std::min(confirmations, start->confirmations);
        oldest = std::min(oldest, start->at);
    }
    m_fields.removeIf([&](QHash<QString, Fields>::iterator entry) {
        std::erase_if(entry.value(), [&](const Field &field) {
            return field.pending.empty() && field.confirmation <= confirmations &&
                   !mayLack(field.confirmedAt, oldest);
        });
        return entry.value().empty();
    });
    m_comments.removeIf([&](QHash<QString, std::vector<PostedComment>>::iterator entry) {
        std::erase_if(entry.value(), [&](const PostedComment &posted) {
            return posted.confirmation <= confirmations;
        });
        return entry.value().empty();
    });
    m_created.removeIf(
        [&](QHash<QString, QDateTime>::iterator entry) { return !mayLack(entry.value(), oldest); });
}
