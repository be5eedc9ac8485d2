#include "http/TransportError.h"

using namespace Qt::StringLiterals;

namespace {

using Kind = TransportError::Kind;

QString certificateText(Kind kind)
{
    switch (kind) {
    case Kind::WrongHost:
        return u"Connexion non sécurisée : le certificat du serveur n'est pas établi pour ce site."_s;
    case Kind::CertificateExpired:
        return u"Connexion non sécurisée : le certificat du serveur a expiré."_s;
    case Kind::CertificateNotYetValid:
        return u"Connexion non sécurisée : le certificat du serveur n'est pas encore valable. "
               u"Vérifie l'heure de ta "
               "machine."_s;
    case Kind::UnknownAuthority:
        return u"Connexion non sécurisée : le certificat du serveur vient d'une autorité inconnue."_s;
    default:
        return u"La connexion sécurisée avec le serveur a échoué."_s;
    }
}

QString textOf(Kind kind)
{
    switch (kind) {
    case Kind::NoWebAddress:
        return u"Adresse non prise en charge : elle doit commencer par https:// ou http://."_s;
    case Kind::HostNotFound:
        return u"Serveur introuvable. Vérifie l'adresse du site et ta connexion à Internet."_s;
    case Kind::Refused:
        return u"Le serveur refuse la connexion. Vérifie l'adresse du site."_s;
    case Kind::ConnectionLost:
        return u"La connexion au serveur a été interrompue."_s;
    case Kind::TimedOut:
        return u"Le serveur n'a pas répondu à temps."_s;
    case Kind::Unreachable:
        return u"Impossible de joindre le serveur. Vérifie ta connexion à Internet."_s;
    case Kind::WrongHost:
    case Kind::CertificateExpired:
    case Kind::CertificateNotYetValid:
    case Kind::UnknownAuthority:
    case Kind::NotSecure:
        return certificateText(kind);
    case Kind::ProxyFailed:
        return u"Le proxy du réseau n'a pas transmis la demande."_s;
    case Kind::ProxyWantsLogin:
        return u"Le proxy du réseau demande un mot de passe."_s;
    case Kind::TooManyRedirects:
        return u"Le serveur redirige sans fin."_s;
    case Kind::UnsafeRedirect:
        return u"Le serveur redirige vers une adresse non sécurisée."_s;
    case Kind::ForeignRedirect:
        return u"Le serveur redirige l'envoi vers un autre site."_s;
    case Kind::RedirectedWrite:
        return u"Le site n'a pas fait la modification : il redirige vers une autre page."_s;
    case Kind::TooLarge:
        return u"La réponse du serveur est trop volumineuse."_s;
    case Kind::Broken:
        return u"La réponse du serveur est endommagée."_s;
    case Kind::NotStored:
        return u"Le fichier n'a pas pu être enregistré sur le disque."_s;
    }
    return {};
}

} // namespace

TransportError::TransportError(Kind kind) : Failure(textOf(kind)), m_kind(kind) {}
