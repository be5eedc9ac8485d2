#include "model/StatusNames.h"

#include <QStringList>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct CanonicalName
{
    QString key;
    QString label;
    /// In folded form, because they are compared with folded names.
    QStringList synonyms;
};

std::vector<CanonicalName> canonicalNames()
{
    return {
        {u"backlog"_s, u"Backlog"_s, {u"backlog"_s}},
        {u"todo"_s,
         u"À faire"_s,
         {u"to do"_s, u"todo"_s, u"a faire"_s, u"open"_s, u"ouvert"_s, u"ouverte"_s, u"new"_s,
          u"nouveau"_s, u"nouvelle"_s}},
        {u"inprogress"_s,
         u"En cours"_s,
         {u"in progress"_s, u"en cours"_s, u"in-progress"_s, u"en cours de traitement"_s,
          u"work in progress"_s, u"doing"_s}},
        {u"inreview"_s,
         u"En revue"_s,
         {u"in review"_s, u"review"_s, u"en revue"_s, u"code review"_s, u"revue de code"_s,
          u"en relecture"_s, u"relecture"_s, u"under review"_s}},
        {u"testing"_s,
         u"En test"_s,
         {u"testing"_s, u"in test"_s, u"en test"_s, u"qa"_s, u"in qa"_s, u"en recette"_s,
          u"recette"_s}},
        {u"blocked"_s, u"Bloqué"_s, {u"blocked"_s, u"bloque"_s, u"bloquee"_s}},
        {u"onhold"_s, u"En pause"_s, {u"on hold"_s, u"en pause"_s}},
        {u"waitingcustomer"_s,
         u"En attente du client"_s,
         {u"waiting for customer"_s, u"en attente du client"_s, u"en attente client"_s,
          u"pending customer"_s}},
        {u"waitingsupport"_s,
         u"En attente du support"_s,
         {u"waiting for support"_s, u"en attente du support"_s, u"en attente support"_s}},
        {u"done"_s,
         u"Terminé"_s,
         {u"done"_s, u"termine"_s, u"terminee"_s, u"resolu"_s, u"resolue"_s, u"resolved"_s,
          u"closed"_s, u"ferme"_s, u"fermee"_s, u"complete"_s, u"completed"_s, u"fini"_s,
          u"finished"_s}},
        {u"cancelled"_s,
         u"Annulé"_s,
         {u"cancelled"_s, u"canceled"_s, u"annule"_s, u"annulee"_s, u"won't do"_s, u"won’t do"_s,
          u"wont do"_s, u"abandonne"_s}},
    };
}

QHash<QString, QString> keysBySynonym()
{
    QHash<QString, QString> keys;
    for (const CanonicalName &name : canonicalNames()) {
        for (const QString &synonym : name.synonyms)
            keys.insert(synonym, name.key);
    }
    return keys;
}

QHash<QString, QString> labelsByKey()
{
    QHash<QString, QString> labels;
    for (const CanonicalName &name : canonicalNames())
        labels.insert(name.key, name.label);
    return labels;
}

bool isSpaceOrTab(QChar c)
{
    return c == u' ' || c == u'\t';
}

QString withoutOuterBlanks(QStringView text)
{
    while (!text.isEmpty() && isSpaceOrTab(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isSpaceOrTab(text.back()))
        text.chop(1);
    return text.toString();
}

} // namespace

QString statusGroupKey(const QString &foldedName)
{
    static const QHash<QString, QString> keys = keysBySynonym();
    const QString name = withoutOuterBlanks(foldedName);
    return keys.value(name, name);
}

const QHash<QString, QString> &statusLabels()
{
    static const QHash<QString, QString> labels = labelsByKey();
    return labels;
}
