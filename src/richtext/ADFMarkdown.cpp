#include "richtext/ADFMarkdown.h"

#include "richtext/ADFNodes.h"
#include "richtext/markdown/BlockKinds.h"
#include "richtext/markdown/InlineNodes.h"
#include "richtext/writing/BlockWriter.h"

#include <QUuid>

using namespace Qt::StringLiterals;

namespace {

QList<ADFNode> parse(const std::vector<QStringView> &lines,
                     const ADFMarkdown::LocalIDSource &localIDs)
{
    return Markdown::parseBlocks(lines, Markdown::BlockContext{localIDs});
}

} // namespace

QString ADFMarkdown::randomLocalID()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

ADFNode ADFMarkdown::document(const QString &text, const LocalIDSource &localIDs)
{
    const QString unified = text.contains(u'\r') ? QString(text).replace("\r\n"_L1, "\n"_L1) : text;
    std::vector<QStringView> lines;
    for (const QStringView line : QStringView(unified).tokenize(u'\n'))
        lines.push_back(line);
    return ADF::document(parse(lines, localIDs));
}

QList<ADFNode> ADFMarkdown::parseBlocks(const QStringList &lines, const LocalIDSource &localIDs)
{
    return parse({lines.cbegin(), lines.cend()}, localIDs);
}

QList<ADFNode> ADFMarkdown::inlineNodes(const QString &text)
{
    if (text.isEmpty())
        return {};
    std::vector<QStringView> lines;
    for (const QStringView line : QStringView(text).tokenize(u'\n'))
        lines.push_back(line);
    return Markdown::inlineNodes(lines);
}

QString ADFMarkdown::markdown(const ADFNode &document, const UserCalendar &calendar)
{
    BlockWriter writer(calendar);
    writer.write(ADF::children(document));
    return writer.take();
}

QString ADFMarkdown::markdown(const std::optional<ADFNode> &document, const UserCalendar &calendar)
{
    return document ? markdown(*document, calendar) : QString();
}
