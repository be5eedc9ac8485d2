#include "model/ADFNode.h"

#include <QHashFunctions>

namespace {

size_t hashOf(const ADFAttributes &attributes, size_t seed)
{
    for (auto entry = attributes.cbegin(); entry != attributes.cend(); ++entry)
        seed = qHashMulti(seed, entry.key(), entry.value());
    return seed;
}

size_t hashOf(const std::optional<ADFAttributes> &attributes, size_t seed)
{
    return attributes ? hashOf(*attributes, qHash(true, seed)) : qHash(false, seed);
}

template <typename T>
size_t hashOf(const std::optional<QList<T>> &list, size_t seed)
{
    return list ? qHashRange(list->cbegin(), list->cend(), qHash(true, seed)) : qHash(false, seed);
}

} // namespace

bool ADFNode::operator==(const ADFNode &other) const
{
    return type == other.type && text == other.text && content == other.content &&
           marks == other.marks && attrs == other.attrs && version == other.version;
}

size_t qHash(const ADFMark &mark, size_t seed)
{
    return hashOf(mark.attrs, qHash(mark.type, seed));
}

size_t qHash(const ADFNode &node, size_t seed)
{
    seed = qHashMulti(seed, node.type, node.text.has_value(), node.text.value_or(QString()));
    seed = qHashMulti(seed, node.version.has_value(), node.version.value_or(0));
    return hashOf(node.attrs, hashOf(node.marks, hashOf(node.content, seed)));
}
