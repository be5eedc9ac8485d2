#include "simulator/server/Certificates.h"

#include <QFile>
#include <QSslCertificate>
#include <QSslKey>
#include <QString>

using namespace Qt::StringLiterals;

namespace {

QByteArray contentOf(const QString &name)
{
    QFile file(QStringLiteral(VELMORA_CERTIFICATES "/") + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(file.fileName()));
    return file.readAll();
}

QString fileOf(Certificates::Kind kind)
{
    switch (kind) {
    case Certificates::Kind::Good:
        return u"site.pem"_s;
    case Certificates::Kind::OtherHost:
        return u"other-host.pem"_s;
    case Certificates::Kind::Expired:
        return u"expired.pem"_s;
    case Certificates::Kind::Stranger:
        return u"stranger.pem"_s;
    }
    Q_UNREACHABLE();
}

} // namespace

QSslConfiguration Certificates::server(Kind kind)
{
    QSslConfiguration configuration;
    configuration.setLocalCertificate(QSslCertificate(contentOf(fileOf(kind))));
    configuration.setPrivateKey(QSslKey(contentOf(u"key.pem"_s), QSsl::Ec));
    configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
    return configuration;
}

Certificates::TrustedAuthority::TrustedAuthority()
    : m_before(QSslConfiguration::defaultConfiguration())
{
    QSslConfiguration configuration = m_before;
    configuration.addCaCertificate(QSslCertificate(contentOf(u"authority.pem"_s)));
    QSslConfiguration::setDefaultConfiguration(configuration);
}

Certificates::TrustedAuthority::~TrustedAuthority()
{
    QSslConfiguration::setDefaultConfiguration(m_before);
}
