#include "screens/gallery/SampleOptions.h"

#include "screens/gallery/Samples.h"

using namespace Qt::StringLiterals;

namespace {

QList<OptionItem> people()
{
    QList<OptionItem> items{
        {.id = u"none"_s, .title = u"Non assigné"_s, .icon = {OptionIcon::User{}}}};
    for (const auto &user : Samples().people())
        items.append({.id = user.id, .title = user.name, .icon = {OptionIcon::User{user}}});
    items[1].subtitle = u"Moi"_s;
    items[1].isSelected = true;
    return items;
}

QList<OptionItem> labels()
{
    QList<OptionItem> items;
    for (const auto &label : Samples().labels())
        items.append({.id = label,
                      .title = label,
                      .icon = {OptionIcon::Label{label}},
                      .isSelected = label == u"auth"_s});
    return items;
}

QList<OptionItem> statuses()
{
    QList<OptionItem> items;
    for (const auto &status : Samples().statuses())
        items.append({.id = status.name(),
                      .title = status.name(),
                      .icon = {status},
                      .isSelected = items.size() == 2,
                      .shortcut = QString::number(items.size() + 1)});
    return items;
}

} // namespace

QList<OptionItem> SampleOptions::items() const
{
    return m_kind == People ? people() : m_kind == Labels ? labels() : statuses();
}
