#include "simulator/SiteRoute.h"

#include <QRegularExpression>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

using Op = SiteOperation;

struct Rule
{
    QByteArray method;
    QRegularExpression path;
    SiteOperation operation;
};

Rule rule(const QByteArray &method, const QString &path, SiteOperation operation)
{
    QString pattern = path;
    pattern.replace(u'*', u"([^/]+)"_s);
    return {method, QRegularExpression(u"^/rest/api/3/"_s + pattern + u'$'), operation};
}

/// The first matching rule applies.
const QList<Rule> &rules()
{
    static const QList<Rule> all = {
        rule("GET", u"myself"_s, Op::Myself),
        rule("GET", u"project/search"_s, Op::Projects),
        rule("GET", u"project/*"_s, Op::Project),
        rule("GET", u"project/*/statuses"_s, Op::ProjectStatuses),
        rule("GET", u"priority/search"_s, Op::PrioritySearch),
        rule("GET", u"priority"_s, Op::Priorities),
        rule("GET", u"user/assignable/search"_s, Op::AssignableUsers),
        rule("GET", u"user/search"_s, Op::UserSearch),
        rule("POST", u"search/jql"_s, Op::Search),
        rule("GET", u"issue/*"_s, Op::ReadIssue),
        rule("GET", u"issue/*/comment"_s, Op::Comments),
        rule("GET", u"issue/*/transitions"_s, Op::Transitions),
        rule("POST", u"issue/*/transitions"_s, Op::Perform),
        rule("PUT", u"issue/*"_s, Op::Update),
        rule("PUT", u"issue/*/assignee"_s, Op::Assign),
        rule("POST", u"issue/*/comment"_s, Op::AddComment),
        rule("POST", u"issue"_s, Op::Create),
        rule("POST", u"issue/*/attachments"_s, Op::Upload),
        rule("GET", u"attachment/content/*"_s, Op::AttachmentContent),
        rule("GET", u"attachment/thumbnail/*"_s, Op::AttachmentThumbnail),
        rule("DELETE", u"attachment/*"_s, Op::DeleteAttachment),
    };
    return all;
}

} // namespace

QString SiteRoute::value(const QString &name) const
{
    // In a query, a plus sign means a blank.
    QString encoded = query.queryItemValue(name, QUrl::FullyEncoded);
    return QUrl::fromPercentEncoding(encoded.replace(u'+', u' ').toLatin1());
}

int SiteRoute::number(const QString &name, int usual, int most) const
{
    bool isNumber = false;
    const int number = value(name).toInt(&isNumber);
    return isNumber ? std::clamp(number, 0, most) : usual;
}

std::optional<SiteRoute> routeOf(const RawRequest &request)
{
    const QUrl url = QUrl::fromEncoded(request.target);
    const QString path = url.path(QUrl::FullyEncoded);
    for (const Rule &rule : rules()) {
        if (rule.method != request.method)
            continue;
        const auto match = rule.path.match(path);
        if (match.hasMatch())
            return SiteRoute{rule.operation,
                             QUrl::fromPercentEncoding(match.captured(1).toLatin1()),
                             QUrlQuery(url.query(QUrl::FullyEncoded))};
    }
    return {};
}
