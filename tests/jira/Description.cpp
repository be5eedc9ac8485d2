#include "jira/Description.h"

#include "richtext/ADFCoding.h"

#include <QMetaEnum>

using namespace Qt::StringLiterals;

namespace {

template <typename E>
QString nameOf(E value)
{
    return QString::fromLatin1(QMetaEnum::fromType<E>().valueToKey(int(value)));
}

QString timeText(const QDateTime &time)
{
    return time.toString(u"yyyy-MM-dd HH:mm:ss.zzz t"_s);
}

QString shown(const QString &text)
{
    return text.isEmpty() ? u"(empty)"_s : text;
}

/// Adds the line "  name: value" if there is a value.
template <typename T>
void add(QStringList &lines, const QString &name, const std::optional<T> &value)
{
    if (value)
        lines.append(u"  "_s + name + ": "_L1 + Description::of(*value));
}

void add(QStringList &lines, const QString &name, const QString &value)
{
    lines.append(u"  "_s + name + ": "_L1 + value);
}

template <typename T>
void add(QStringList &lines, const QString &name, const QList<T> &values)
{
    for (const T &value : values)
        lines.append(u"  "_s + name + ": "_L1 + Description::of(value));
}

void add(QStringList &lines, const QString &name, const std::optional<ADFNode> &document)
{
    if (document)
        add(lines, name, QString::fromUtf8(ADFCoding::encode(*document)));
}

struct KindText
{
    QString operator()(const ActivityEvent::StatusChanged &change) const
    {
        return "status "_L1 + change.from.value_or(u"(none)"_s) + " > "_L1 + change.to;
    }
    QString operator()(const ActivityEvent::AssigneeChanged &change) const
    {
        return "assignee "_L1 + change.to.value_or(u"(none)"_s);
    }
    QString operator()(const ActivityEvent::Created &) const { return u"created"_s; }
};

} // namespace

QString Description::of(const JiraUser &user)
{
    QString text = user.id + u' ' + shown(user.name);
    if (user.email)
        text += u" <"_s + *user.email + u'>';
    if (user.avatarURL)
        text += u' ' + user.avatarURL->toString();
    return text;
}

QString Description::of(const IssueStatus &status)
{
    return u"%1 %2 (%3, %4)"_s.arg(status.id(), status.name(), nameOf(status.category()),
                                   status.groupKey());
}

QString Description::of(const IssuePriority &priority)
{
    return u"%1 %2 (%3)"_s.arg(priority.id(), priority.name(), nameOf(priority.level()));
}

QString Description::of(const IssueType &type)
{
    return u"%1 %2 (%3, level %4)"_s.arg(type.id, type.name, nameOf(type.kind()))
        .arg(type.hierarchyLevel);
}

QString Description::of(const WorkflowTransition &transition)
{
    return u"%1 %2 > %3"_s.arg(transition.id, transition.name, of(transition.to));
}

QString Description::of(const Project &project)
{
    QStringList lines{u"%1 %2 %3"_s.arg(project.id, project.key, project.name)};
    if (project.avatarURL)
        add(lines, u"avatar"_s, project.avatarURL->toString());
    if (project.isServiceDesk)
        lines.append(u"  service desk"_s);
    add(lines, u"type"_s, project.issueTypes);
    return lines.join(u'\n');
}

QString Description::of(const IssueRef &issue)
{
    QString text = u"%1 %2 %3"_s.arg(issue.id, issue.key, issue.summary);
    if (issue.status)
        text += u", "_s + of(*issue.status);
    if (issue.type)
        text += u", "_s + of(*issue.type);
    return text;
}

QString Description::of(const Attachment &attachment)
{
    QString text =
        u"%1 %2 %3 %4 bytes, %5"_s.arg(attachment.id, attachment.filename, attachment.mimeType)
            .arg(attachment.size)
            .arg(timeText(attachment.created));
    if (attachment.author)
        text += u", by "_s + of(*attachment.author);
    if (attachment.contentURL)
        text += u", content "_s + attachment.contentURL->toString();
    if (attachment.thumbnailURL)
        text += u", thumbnail "_s + attachment.thumbnailURL->toString();
    return text;
}

QString Description::of(const ActivityEvent &event)
{
    QString text = timeText(event.date) + u' ' + std::visit(KindText(), event.kind);
    return event.author ? text + u", by "_s + of(*event.author) : text;
}

QString Description::of(const Comment &comment)
{
    QStringList lines{comment.id + u' ' + timeText(comment.created)};
    add(lines, u"author"_s, comment.author);
    if (comment.isInternal)
        lines.append(u"  internal"_s);
    if (comment.restrictedTo)
        add(lines, u"restricted to"_s, *comment.restrictedTo);
    add(lines, u"body"_s, comment.body);
    if (!comment.attachmentIDs.isEmpty())
        add(lines, u"attachments"_s, comment.attachmentIDs.join(u' '));
    return lines.join(u'\n');
}

QString Description::of(const Issue &issue)
{
    QStringList lines{u"%1 %2 %3"_s.arg(issue.id, shown(issue.key), issue.summary)};
    add(lines, u"status"_s, of(issue.status));
    add(lines, u"priority"_s, issue.priority);
    add(lines, u"assignee"_s, issue.assignee);
    add(lines, u"reporter"_s, issue.reporter);
    if (!issue.labels.isEmpty())
        add(lines, u"labels"_s, issue.labels.join(u", "));
    add(lines, u"type"_s, issue.type);
    add(lines, u"project"_s, shown(issue.projectKey));
    add(lines, u"created"_s, timeText(issue.created));
    add(lines, u"updated"_s, timeText(issue.updated));
    if (issue.dueDate)
        add(lines, u"due"_s, issue.dueDate->toString(Qt::ISODate));
    add(lines, u"description"_s, issue.description);
    add(lines, u"parent"_s, issue.parent);
    add(lines, u"subtask"_s, issue.subtasks);
    if (issue.hasDetails)
        lines.append(u"  has details"_s);
    add(lines, u"event"_s, issue.activity);
    add(lines, u"attachment"_s, issue.attachments);
    return lines.join(u'\n');
}
