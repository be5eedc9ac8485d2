#include "screens/issues/motion/IssueDrag.h"

#include "model/OneLineText.h"

using namespace Qt::StringLiterals;

QVariantMap dragContent(const Issue &issue, const std::optional<QUrl> &address)
{
    QVariantMap content{{u"text/plain"_s, issue.key}};
    if (address) {
        const QString link = address->toString(QUrl::FullyEncoded);
        const QString title = issue.key + u' ' + issue.summary;
        content.insert(u"text/uri-list"_s, link);
        content.insert(u"text/html"_s,
                       u"<a href=\"%1\">%2</a>"_s.arg(link.toHtmlEscaped(), title.toHtmlEscaped()));
    }
    return content;
}

bool IssueDrag::take(const QString &key)
{
    const auto issue = m_store ? m_store->issue(key) : std::nullopt;
    if (!issue)
        return false;
    m_issue = withOneLineTexts(**issue);
    m_content = dragContent(m_issue, m_store->browseURL(key));
    Q_EMIT changed();
    return true;
}
