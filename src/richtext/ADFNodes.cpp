#include "richtext/ADFNodes.h"

using namespace Qt::StringLiterals;

ADFNode ADF::plain(QString type)
{
    ADFNode node;
    node.type = std::move(type);
    return node;
}

ADFNode ADF::plain(QStringView type)
{
    return plain(type.toString());
}

ADFNode ADF::container(QString type, QList<ADFNode> content)
{
    ADFNode node = plain(std::move(type));
    node.content = std::move(content);
    return node;
}

ADFNode ADF::container(QStringView type, QList<ADFNode> content)
{
    return container(type.toString(), std::move(content));
}

ADFNode ADF::text(QString text, QList<ADFMark> marks)
{
    ADFNode node = plain(u"text"_s);
    node.text = std::move(text);
    if (!marks.isEmpty())
        node.marks = std::move(marks);
    return node;
}

ADFNode ADF::document(QList<ADFNode> content)
{
    ADFNode node = container(u"doc"_s, std::move(content));
    node.version = 1;
    return node;
}

const QList<ADFNode> &ADF::children(const ADFNode &node)
{
    static const QList<ADFNode> none;
    return node.content ? *node.content : none;
}
