#include "screens/options/OptionFilter.h"

#include "model/TextFolding.h"

#include <algorithm>

namespace {

bool isFound(const OptionItem &item, const QString &words)
{
    return localizedContains(item.title, words) ||
           (item.subtitle && localizedContains(*item.subtitle, words));
}

} // namespace

QList<OptionItem> filteredOptions(const QList<OptionItem> &items, const QString &query)
{
    const QString words = query.trimmed();
    if (words.isEmpty())
        return items;
    QList<OptionItem> found;
    std::ranges::copy_if(items, std::back_inserter(found),
                         [&](const OptionItem &item) { return isFound(item, words); });
    return found;
}

std::optional<int> itemWithShortcut(const QList<OptionItem> &items, int digit)
{
    const auto item = std::ranges::find_if(
        items, [digit](const OptionItem &each) { return each.isPickedBy(digit); });
    if (item == items.end())
        return std::nullopt;
    return int(item - items.begin());
}
