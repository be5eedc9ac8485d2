#include "screens/attachments/facts/UploadFacts.h"

#include "model/text/VisibleText.h"

using namespace Qt::StringLiterals;

QString UploadFacts::progressText() const
{
    const auto known = upload.fraction();
    if (!known)
        return {};
    return u"Envoyé à "_s + QString::number(int(*known * 10) * 10) + u"\u00A0%"_s;
}

QString UploadFacts::spokenName() const
{
    return u"Envoi de "_s + visibleText(upload.fileNames.value(index));
}

QString UploadFacts::cancelName() const
{
    if (upload.fileNames.size() < 2)
        return u"Annuler l'envoi de "_s + visibleText(upload.fileNames.value(index));
    return u"Annuler l'envoi des "_s + QString::number(upload.fileNames.size()) + u" fichiers"_s;
}
