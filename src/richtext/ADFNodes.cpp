#include "richtext/ADFNodes.h"

using namespace Qt::StringLiterals;

ADFNode ADF::plain(QStringView type)
{
    ADFNode node;
    node.type = type.toString();
    return node;
}

ADFNode ADF::container(QStringView type, QList<ADFNode> content)
{
    ADFNode node = plain(type);
    node.content = std::move(content);
    return node;
}

ADFNode ADF::text(QString text, QList<ADFMark> marks)
{
    ADFNode node = plain(u"text");
    node.text = std::move(text);
    if (!marks.isEmpty())
        node.marks = std::move(marks);
    return node;
}

ADFNode ADF::document(QList<ADFNode> content)
{
    ADFNode node = container(u"doc", std::move(content));
    node.version = 1;
    return node;
}

const QList<ADFNode> &ADF::children(const ADFNode &node)
{
    static const QList<ADFNode> none;
    return node.content ? *node.content : none;
}
