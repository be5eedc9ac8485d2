#include "screens/gallery/SampleDocuments.h"

#include "richtext/ADFCoding.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

ADFNode read(const QString &name)
{
    QFile file(u":/qt/qml/Velmora/Gallery/"_s + name);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return ADFCoding::decodeNode(file.readAll()).value_or(ADFNode());
}

} // namespace

ADFNode SampleDocuments::description() const
{
    return read(u"issue.json"_s);
}

ADFNode SampleDocuments::comment() const
{
    return read(u"comment.json"_s);
}
