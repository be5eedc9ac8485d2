#include "simulator/SiteReply.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

RawAnswer SiteReply::found(const QJsonObject &body, int status)
{
    return RawAnswer::json(QJsonDocument(body).toJson(QJsonDocument::Compact), status);
}

RawAnswer SiteReply::found(const QJsonArray &body)
{
    return RawAnswer::json(QJsonDocument(body).toJson(QJsonDocument::Compact));
}

RawAnswer SiteReply::done()
{
    return RawAnswer::http(204, {});
}

RawAnswer SiteReply::refused(int status, const QStringList &messages,
                             const QMap<QString, QString> &errors)
{
    QJsonObject byField;
    for (const auto &[field, message] : errors.asKeyValueRange())
        byField.insert(field, message);
    return found(QJsonObject{{u"errorMessages"_s, QJsonArray::fromStringList(messages)},
                             {u"errors"_s, byField}},
                 status);
}

RawAnswer SiteReply::tooManyRequests(std::chrono::seconds wait)
{
    const QByteArray body = R"({"message":"Rate limit exceeded.","status-code":429})";
    return RawAnswer::http(429, body,
                           {{"Content-Type", "application/json;charset=UTF-8"},
                            {"Retry-After", QByteArray::number(qlonglong(wait.count()))},
                            {"X-RateLimit-NearLimit", "true"}});
}

RawAnswer SiteReply::noSuchIssue()
{
    return refused(404, {u"Le ticket n’existe pas ou vous n’êtes pas autorisé à le consulter."_s});
}

RawAnswer SiteReply::badBody()
{
    return refused(400,
                   {u"Contenu de la requête non valide. Consultez la documentation de l’API REST "
                    "et réessayez."_s});
}
