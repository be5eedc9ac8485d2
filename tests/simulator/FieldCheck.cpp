#include "simulator/FieldCheck.h"

#include "simulator/DocumentCheck.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

using Check = std::optional<QString> (*)(const Site &, const QJsonValue &);

std::optional<QString> summaryFault(const Site &, const QJsonValue &value)
{
    const QString text = value.toString();
    if (!value.isString() || text.trimmed().isEmpty())
        return u"Vous devez spécifier un résumé."_s;
    if (text.contains(u'\n') || text.contains(u'\r'))
        return u"Le résumé ne doit pas contenir de saut de ligne."_s;
    if (text.size() > 255)
        return u"Le résumé ne peut pas dépasser 255 caractères."_s;
    return {};
}

std::optional<QString> descriptionFault(const Site &, const QJsonValue &value)
{
    if (lengthOf(value) > LongestText)
        return tooLongText();
    const auto fault = value.isNull() ? std::nullopt : faultOf(value);
    return fault ? std::optional(u"La valeur doit être un document Atlassian (%1)."_s.arg(*fault))
                 : std::nullopt;
}

std::optional<QString> priorityFault(const Site &site, const QJsonValue &value)
{
    if (site.priority(value["id"_L1].toString()))
        return {};
    return u"La priorité sélectionnée n’est pas valide."_s;
}

std::optional<QString> labelsFault(const Site &, const QJsonValue &value)
{
    if (!value.isArray())
        return u"La valeur doit être un tableau."_s;
    for (const QJsonValue label : value.toArray()) {
        const QString text = label.toString();
        if (!label.isString() || text.isEmpty() || text.contains(u' '))
            return u"L’étiquette « %1 » contient des espaces, ce qui n’est pas autorisé."_s.arg(
                text);
    }
    return {};
}

std::optional<QString> dayFault(const Site &, const QJsonValue &value)
{
    if (value.isNull() || QDate::fromString(value.toString(), u"yyyy-MM-dd"_s).isValid())
        return {};
    return u"Erreur lors de l’analyse de la date : attendu « aaaa-MM-jj »."_s;
}

std::optional<QString> assigneeFault(const Site &site, const QJsonValue &value)
{
    const QString account = value["accountId"_L1].toString(value["id"_L1].toString());
    const SiteUser *user = site.user(account);
    if (value.isNull() || (user && user->isActive))
        return {};
    return u"L’utilisateur « %1 » ne peut pas recevoir de tickets."_s.arg(account);
}

const QHash<QString, Check> &checks()
{
    static const QHash<QString, Check> all = {
        {u"summary"_s, summaryFault},   {u"description"_s, descriptionFault},
        {u"priority"_s, priorityFault}, {u"labels"_s, labelsFault},
        {u"duedate"_s, dayFault},       {u"assignee"_s, assigneeFault},
    };
    return all;
}

} // namespace

QMap<QString, QString> faultsOfFields(const Site &site, const QJsonObject &fields)
{
    QMap<QString, QString> faults;
    for (auto field = fields.begin(); field != fields.end(); ++field) {
        const Check check = checks().value(field.key());
        const auto fault =
            check ? check(site, field.value())
                  : std::optional(u"Le champ « %1 » ne peut pas être défini. Il ne figure pas sur "
                                  "l’écran approprié ou est inconnu."_s.arg(field.key()));
        if (fault)
            faults.insert(field.key(), *fault);
    }
    return faults;
}
