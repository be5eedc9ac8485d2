#include "platform/bundles/UpdateError.h"

using namespace Qt::StringLiterals;

UpdateError UpdateError::badResponse(int status)
{
    return {Kind::BadResponse,
            u"Le serveur de mises à jour a répondu "_s + QString::number(status) + u'.'};
}

UpdateError UpdateError::signature(const QString &detail)
{
    return {Kind::Signature, u"Signature refusée : "_s + detail};
}

UpdateError UpdateError::notWritable(const QString &folder)
{
    return {Kind::NotWritable, u"Impossible d'écrire dans « "_s + folder +
                                   u" ». Installe la mise à jour à la main."_s};
}

UpdateError UpdateError::tool(const QString &message)
{
    return {Kind::Tool, message};
}

UpdateError UpdateError::checksum()
{
    return {Kind::Checksum,
            u"Le fichier téléchargé est corrompu (empreinte SHA-256 différente)."_s};
}

UpdateError UpdateError::missingApp()
{
    return {Kind::MissingApp, u"L'archive ne contient pas Velmora.app."_s};
}
