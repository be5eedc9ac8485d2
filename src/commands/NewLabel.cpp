#include "commands/NewLabel.h"

#include <algorithm>

using namespace Qt::StringLiterals;

std::optional<QString> newLabel(const QString &query, const QList<OptionItem> &labels,
                                LabelComparison comparison)
{
    const QString words = query.trimmed();
    const QString label = QString(words).replace(u' ', u'-');
    const QString &compared = comparison == LabelComparison::AsTyped ? words : label;
    const bool isTaken = std::ranges::any_of(labels, [&](const OptionItem &item) {
        return item.title.compare(compared, Qt::CaseInsensitive) == 0;
    });
    return label.isEmpty() || isTaken ? std::nullopt : std::optional(label);
}

QString newLabelTitle(const QString &label)
{
    return u"Créer l'étiquette « "_s + label + u" »"_s;
}
