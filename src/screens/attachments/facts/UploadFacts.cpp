#include "screens/attachments/facts/UploadFacts.h"

using namespace Qt::StringLiterals;

QString UploadFacts::progressText() const
{
    const auto known = upload.fraction();
    if (!known)
        return {};
    return u"Envoyé à "_s + QString::number(int(*known * 10) * 10) + u"\u00A0%"_s;
}

QString UploadFacts::cancelName() const
{
    if (upload.fileCount < 2)
        return u"Annuler l'envoi"_s;
    return u"Annuler l'envoi des "_s + QString::number(upload.fileCount) + u" fichiers"_s;
}
