#include "screens/documents/content/MediaBlock.h"

#include "richtext/ADFQueries.h"

using namespace Qt::StringLiterals;

namespace {

QStringList readAll(const QList<ADFNode> &nodes, const QString &name)
{
    QStringList values;
    for (const auto &node : nodes)
        values.append(ADF::attribute(node, name).value_or(QString()));
    return values;
}

} // namespace

QList<ADFNode> MediaBlock::files() const
{
    if (node.type == u"media")
        return {node};
    QList<ADFNode> files;
    for (const auto &child : node.content.value_or(QList<ADFNode>())) {
        if (child.type == u"media")
            files.append(child);
    }
    return files;
}

QStringList MediaBlock::attachmentIDs() const
{
    return readAll(files(), u"velmoraAttachmentID"_s);
}

QStringList MediaBlock::fileNames() const
{
    return readAll(files(), u"alt"_s);
}
