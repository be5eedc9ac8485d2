#include "richtext/ADFQueries.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array inlineContainers{QStringView(u"paragraph"), QStringView(u"heading"),
                                      QStringView(u"taskItem"), QStringView(u"decisionItem"),
                                      QStringView(u"codeBlock")};
constexpr std::array richKinds{QStringView(u"table"),        QStringView(u"media"),
                               QStringView(u"mediaSingle"),  QStringView(u"mediaGroup"),
                               QStringView(u"panel"),        QStringView(u"expand"),
                               QStringView(u"nestedExpand"), QStringView(u"layoutSection"),
                               QStringView(u"extension"),    QStringView(u"bodiedExtension")};

const QString attachmentKey = u"velmoraAttachmentID"_s;

template <typename Kinds>
bool isOneOf(const Kinds &kinds, QStringView type)
{
    return std::ranges::find(kinds, type) != kinds.end();
}

std::optional<QString> read(const std::optional<ADFAttributes> &attrs, const QString &name)
{
    return attrs ? attrs->value(name).string() : std::nullopt;
}

/// Calls `visit` for the node and then for all its descendants, in document order.
template <typename Node, typename Visit>
void walk(Node &node, const Visit &visit)
{
    visit(node);
    if (!node.content)
        return;
    for (auto &child : *node.content)
        walk(child, visit);
}

void appendText(const ADFNode &node, QString &text);

void appendChildren(const ADFNode &node, QString &text)
{
    if (!node.content)
        return;
    const bool joined = ADF::isInlineContainer(node.type);
    for (qsizetype i = 0; i < node.content->size(); ++i) {
        if (i > 0 && !joined)
            text += u'\n';
        appendText(node.content->at(i), text);
    }
}

void appendText(const ADFNode &node, QString &text)
{
    if (node.type == u"text")
        text += node.text.value_or(QString());
    else if (node.type == u"hardBreak")
        text += u'\n';
    else if (node.type == u"mention")
        text += ADF::attribute(node, u"text"_s).value_or(u"@"_s);
    else if (node.type == u"emoji")
        text += ADF::attribute(node, u"text"_s)
                    .or_else([&] { return ADF::attribute(node, u"shortName"_s); })
                    .value_or(QString());
    else if (node.type == u"inlineCard")
        text += ADF::attribute(node, u"url"_s).value_or(QString());
    else
        appendChildren(node, text);
}

void appendLinks(const ADFNode &node, QStringList &urls)
{
    for (const ADFMark &mark : node.marks.value_or(QList<ADFMark>())) {
        if (const auto href = read(mark.attrs, u"href"_s); href && mark.type == u"link")
            urls.append(*href);
    }
    if (const auto url = ADF::attribute(node, u"url"_s); url && node.type == u"inlineCard")
        urls.append(*url);
}

std::optional<JiraUser> mentionedUser(const ADFNode &node)
{
    const auto id = ADF::attribute(node, u"id"_s);
    if (node.type != u"mention" || !id)
        return std::nullopt;
    JiraUser user;
    user.id = *id;
    user.name = ADF::attribute(node, u"text"_s).value_or(QString());
    if (user.name.startsWith(u'@'))
        user.name.remove(0, 1);
    return user;
}

} // namespace

bool ADF::isInlineContainer(QStringView type)
{
    return isOneOf(inlineContainers, type);
}

std::optional<QString> ADF::attribute(const ADFNode &node, const QString &name)
{
    return read(node.attrs, name);
}

bool ADF::hasMark(const ADFNode &node, QStringView type)
{
    const auto isOfType = [type](const ADFMark &mark) { return mark.type == type; };
    return node.marks && std::ranges::any_of(*node.marks, isOfType);
}

QString ADF::plainText(const ADFNode &node)
{
    QString text;
    appendText(node, text);
    return text;
}

bool ADF::isEmpty(const ADFNode &node)
{
    return plainText(node).trimmed().isEmpty() && !containsRichContent(node);
}

bool ADF::containsRichContent(const ADFNode &node)
{
    if (isOneOf(richKinds, node.type))
        return true;
    return node.content && std::ranges::any_of(*node.content, containsRichContent);
}

QStringList ADF::mediaAttachmentIDs(const ADFNode &node)
{
    QStringList ids;
    walk(node, [&](const ADFNode &each) {
        if (const auto id = attribute(each, attachmentKey))
            ids.append(*id);
    });
    return ids;
}

QStringList ADF::linkURLs(const ADFNode &node)
{
    QStringList urls;
    walk(node, [&](const ADFNode &each) { appendLinks(each, urls); });
    return urls;
}

QList<JiraUser> ADF::mentionedUsers(const ADFNode &node)
{
    QList<JiraUser> users;
    walk(node, [&](const ADFNode &each) {
        if (auto user = mentionedUser(each))
            users.append(std::move(*user));
    });
    return users;
}

ADFNode ADF::annotated(ADFNode node, const QStringList &ids, qsizetype &index)
{
    walk(node, [&](ADFNode &each) {
        if (each.type != u"media" && each.type != u"mediaInline")
            return;
        if (index < ids.size()) {
            each.attrs = each.attrs.value_or(ADFAttributes());
            each.attrs->insert(attachmentKey, ids[index]);
        }
        ++index;
    });
    return node;
}
