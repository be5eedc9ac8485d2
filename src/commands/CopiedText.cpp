#include "commands/CopiedText.h"

using namespace Qt::StringLiterals;

QString CopiedText::toastMessage() const
{
    return label + u" copié"_s;
}

std::optional<CopiedText> copiedKeys(QStringList keys)
{
    if (keys.isEmpty())
        return std::nullopt;
    keys.sort();
    return CopiedText{keys.join(u", "_s), keys.size() == 1 ? u"Clé "_s + keys.front() : u"Clés"_s};
}
