#include "screens/issues/toolbar/DisplayOptions.h"

#include <algorithm>
#include <array>

namespace {

struct Column
{
    QStringView name;
    bool DisplayProperties::*member;
};

constexpr std::array columns{Column{u"key", &DisplayProperties::key},
                             Column{u"priority", &DisplayProperties::priority},
                             Column{u"type", &DisplayProperties::type},
                             Column{u"labels", &DisplayProperties::labels},
                             Column{u"assignee", &DisplayProperties::assignee},
                             Column{u"dueDate", &DisplayProperties::dueDate},
                             Column{u"updated", &DisplayProperties::updated}};

} // namespace

DisplayProperties toggledDisplay(DisplayProperties display, const QString &name)
{
    const auto *column = std::ranges::find(columns, name, &Column::name);
    if (column != columns.end())
        display.*column->member = !(display.*column->member);
    return display;
}

void DisplayOptions::toggle(const QString &name)
{
    if (m_store)
        m_store->setDisplay(toggledDisplay(m_store->display(), name));
}
