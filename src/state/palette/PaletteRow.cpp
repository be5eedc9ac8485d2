#include "state/palette/PaletteRow.h"

QList<PaletteRow> paletteRows(const QList<PaletteSection> &sections)
{
    QList<PaletteRow> rows;
    for (const auto &section : sections) {
        for (qsizetype i = 0; i < section.items.size(); ++i) {
            const OptionItem &item = section.items[i];
            rows.append({section.id + u'/' + item.id, i == 0 ? section.title : QString(), item});
        }
    }
    return rows;
}
