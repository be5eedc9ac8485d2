#include "richtext/ADFMentions.h"

#include "richtext/ADFNodes.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <functional>
#include <map>
#include <ranges>

using namespace Qt::StringLiterals;

namespace {

/// The number of user-perceived characters.
qsizetype characterCount(const QString &text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype count = 0;
    while (finder.toNextBoundary() >= 0)
        ++count;
    return count;
}

/// The users that have a name, the longest name first; users with names of equal length keep their order.
QList<JiraUser> longestNameFirst(const QList<JiraUser> &users)
{
    std::multimap<qsizetype, JiraUser, std::greater<>> byLength;
    for (const JiraUser &user : users) {
        if (!user.name.isEmpty())
            byLength.emplace(characterCount(user.name), user);
    }
    const auto sorted = std::views::values(byLength);
    return {sorted.begin(), sorted.end()};
}

bool isWordCharacter(char32_t character)
{
    return QChar::isLetter(character) || QChar::isDigit(character);
}

ADFNode mentionNode(const JiraUser &user)
{
    ADFNode node = ADF::plain(u"mention");
    node.attrs = ADFAttributes{
        {u"id"_s, user.id}, {u"text"_s, QString(u'@' + user.name)}, {u"accessLevel"_s, QString()}};
    return node;
}

/// Splits a text at its mentions. Positions count user-perceived characters, so an "@" with a combining mark is a
/// different character from "@".
class MentionSplitter
{
public:
    MentionSplitter(const ADFNode &node, const QList<JiraUser> &users)
        : m_text(*node.text),
          m_marks(node.marks),
          m_users(users),
          m_boundaries(QTextBoundaryFinder::Grapheme, m_text)
    {
    }

    QList<ADFNode> split()
    {
        qsizetype pending = 0;
        for (qsizetype at = m_text.indexOf(u'@'); at >= 0;) {
            const JiraUser *user = canStart(at) ? userAfter(at + 1) : nullptr;
            const qsizetype next = at + 1 + (user ? user->name.size() : 0);
            if (user) {
                flush(pending, at);
                m_nodes.append(mentionNode(*user));
                pending = next;
            }
            at = m_text.indexOf(u'@', next);
        }
        flush(pending, m_text.size());
        return std::move(m_nodes);
    }

private:
    bool isBoundary(qsizetype position)
    {
        m_boundaries.setPosition(position);
        return m_boundaries.isAtBoundary();
    }

    /// The first code point of the character at `position`, from which the class of the character is determined.
    char32_t characterAt(qsizetype position) const
    {
        const QChar first = m_text[position];
        if (first.isHighSurrogate() && position + 1 < m_text.size())
            return QChar::surrogateToUcs4(first, m_text[position + 1]);
        return first.unicode();
    }

    bool canStart(qsizetype at)
    {
        if (!isBoundary(at) || !isBoundary(at + 1))
            return false;
        if (at == 0)
            return true;
        m_boundaries.setPosition(at);
        return !isWordCharacter(characterAt(m_boundaries.toPreviousBoundary()));
    }

    const JiraUser *userAfter(qsizetype start)
    {
        const auto found = std::ranges::find_if(
            m_users, [&](const JiraUser &user) { return hasName(start, user.name); });
        return found == m_users.end() ? nullptr : &*found;
    }

    bool hasName(qsizetype start, const QString &name)
    {
        if (!QStringView(m_text).sliced(start).startsWith(name))
            return false;
        const qsizetype end = start + name.size();
        return end == m_text.size() || (isBoundary(end) && !isWordCharacter(characterAt(end)));
    }

    void flush(qsizetype start, qsizetype end)
    {
        if (end <= start)
            return;
        m_nodes.append(ADF::text(m_text.sliced(start, end - start)));
        m_nodes.last().marks = m_marks;
    }

    const QString m_text;
    const std::optional<QList<ADFMark>> m_marks;
    const QList<JiraUser> &m_users;
    QTextBoundaryFinder m_boundaries;
    QList<ADFNode> m_nodes;
};

bool mayHoldMentions(const ADFNode &node)
{
    const auto verbatim = [](const ADFMark &mark) {
        return mark.type == u"code" || mark.type == u"link";
    };
    return node.type == u"text" && node.text && node.text->contains(u'@') &&
           std::ranges::none_of(node.marks.value_or(QList<ADFMark>()), verbatim);
}

ADFNode linked(ADFNode node, const QList<JiraUser> &users)
{
    if (!node.content)
        return node;
    QList<ADFNode> content;
    content.reserve(node.content->size());
    for (ADFNode &child : *node.content) {
        if (mayHoldMentions(child))
            content += MentionSplitter(child, users).split();
        else
            content.append(linked(std::move(child), users));
    }
    node.content = std::move(content);
    return node;
}

} // namespace

ADFNode ADF::linkingMentions(ADFNode node, const QList<JiraUser> &users)
{
    const QList<JiraUser> sorted = longestNameFirst(users);
    return sorted.isEmpty() ? node : linked(std::move(node), sorted);
}
