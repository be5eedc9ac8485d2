#include "state/palette/PaletteTexts.h"

#include "commands/PickerWords.h"

#include <algorithm>

using namespace Qt::StringLiterals;

QStringList keyCapsules(const QStringList &keys)
{
    constexpr qsizetype most = 3;
    QStringList capsules = keys.first(std::min(most, keys.size()));
    if (keys.size() > most)
        capsules += u'+' + QString::number(keys.size() - most);
    return capsules;
}

QString palettePlaceholder(const PaletteMode &mode)
{
    const auto *picker = mode.asPicker();
    return picker ? pickerPlaceholder(picker->kind)
                  : u"Rechercher un ticket, une action, un projet…"_s;
}

QString emptyPaletteText(PaletteSearch search)
{
    return search == PaletteSearch::UnderWay ? u"Recherche dans Jira…"_s : u"Aucun résultat"_s;
}

QString spokenPaletteState(const QList<PaletteRow> &rows, int highlighted)
{
    QString count = rows.size() == 1 ? u"1 résultat"_s : u"%1 résultats"_s.arg(rows.size());
    if (highlighted < 0 || highlighted >= rows.size())
        return count;
    const OptionItem &item = rows[highlighted].option;
    const QString name = item.subtitle ? item.title + u", "_s + *item.subtitle : item.title;
    // Concatenated instead of using arg(), because a title may contain "%1".
    return count + u". "_s + name + u", %1 sur %2"_s.arg(highlighted + 1).arg(rows.size());
}
