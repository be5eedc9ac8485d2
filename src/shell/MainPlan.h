#pragma once

#include "screens/theme/Metrics.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <algorithm>

/// The inputs for the layout of the main window's panes. Lengths are in logical pixels.
struct MainWishes
{
    int window = 0;
    /// The widths that the user chose.
    int sidebar = Metrics::sidebarWidth;
    int inspector = Metrics::inspectorWidth;
    bool hasInspector = false;
};

/// The distribution of the main window's width among its panes.
class MainPlan
{
    Q_GADGET
    QML_VALUE_TYPE(mainPlan)
    Q_PROPERTY(bool hasSidebar MEMBER hasSidebar CONSTANT FINAL)
    Q_PROPERTY(int sidebar MEMBER sidebar CONSTANT FINAL)
    Q_PROPERTY(int inspector MEMBER inspector CONSTANT FINAL)
    Q_PROPERTY(bool coversDetail MEMBER coversDetail CONSTANT FINAL)

public:
    /// There is enough width for the sidebar. Otherwise it is shown above the other panes on request.
    bool hasSidebar = true;
    /// The width of the sidebar, in either position.
    int sidebar = Metrics::sidebarWidth;
    /// The width of the inspector. 0 if it is not shown.
    int inspector = 0;
    /// The inspector replaces the list.
    bool coversDetail = false;

    bool operator==(const MainPlan &) const = default;
};

/// Computes the layout. The list keeps enough width for a row. As the window narrows, the inspector shrinks first, then
/// the sidebar, which is finally hidden. If the list beside the inspector would be too narrow to be useful, the
/// inspector replaces it.
MainPlan mainPlan(const MainWishes &wishes);

/// The widths that the user can choose.
constexpr int boundedSidebar(int width)
{
    return std::clamp(width, Metrics::sidebarMinWidth, Metrics::sidebarMaxWidth);
}
constexpr int boundedInspector(int width)
{
    return std::clamp(width, Metrics::inspectorMinWidth, Metrics::inspectorMaxWidth);
}
