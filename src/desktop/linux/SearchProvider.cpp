#include "desktop/linux/SearchProvider.h"

#include "desktop/Requests.h"

#include <QDBusMetaType>

using namespace Qt::StringLiterals;

SearchProvider::SearchProvider(IssueFinder &finder) : m_finder(finder)
{
    qDBusRegisterMetaType<QList<QVariantMap>>();
}

QStringList SearchProvider::GetInitialResultSet(const QStringList &terms)
{
    return m_finder.matching(terms);
}

/// The shell passes only the results that it got, which are not all: another word may lead to further ones.
QStringList SearchProvider::GetSubsearchResultSet(const QStringList & /*previous*/,
                                                  const QStringList &terms)
{
    return m_finder.matching(terms);
}

QList<QVariantMap> SearchProvider::GetResultMetas(const QStringList &ids)
{
    QList<QVariantMap> metas;
    for (const QString &id : ids.first(qMin(ids.size(), mostPaletteIssues))) {
        if (const auto found = m_finder.found(id))
            metas += {{u"id"_s, id},
                      {u"name"_s, found->summary},
                      {u"description"_s, found->details},
                      {u"gicon"_s, u"fr.orvantis.Velmora"_s},
                      {u"clipboardText"_s, found->key}};
    }
    return metas;
}

void SearchProvider::ActivateResult(const QString &id, const QStringList & /*terms*/, uint time)
{
    if (const auto found = m_finder.found(id))
        Q_EMIT asked(Activation::atTime(time), Requests::toOpen(found->key));
}

void SearchProvider::LaunchSearch(const QStringList & /*terms*/, uint time)
{
    Q_EMIT asked(Activation::atTime(time), Requests::Palette);
}
