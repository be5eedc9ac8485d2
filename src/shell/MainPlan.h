#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// What the main window is asked to show side by side. Lengths in logical pixels.
struct MainWishes
{
    int window = 0;
    /// The widths that the user chose.
    int sidebar = 240;
    int inspector = 500;
    bool hasInspector = false;
};

/// How the panes of the main window share its width.
class MainPlan
{
    Q_GADGET
    QML_VALUE_TYPE(mainPlan)
    Q_PROPERTY(bool hasSidebar MEMBER hasSidebar CONSTANT FINAL)
    Q_PROPERTY(int sidebar MEMBER sidebar CONSTANT FINAL)
    Q_PROPERTY(int inspector MEMBER inspector CONSTANT FINAL)
    Q_PROPERTY(bool coversDetail MEMBER coversDetail CONSTANT FINAL)

public:
    /// There is room for the sidebar. Without, it comes over the rest when it is asked for.
    bool hasSidebar = true;
    /// Its width, wherever it stands.
    int sidebar = 240;
    /// The inspector's width; 0 without one.
    int inspector = 0;
    /// The inspector takes the place of the list.
    bool coversDetail = false;

    bool operator==(const MainPlan &) const = default;
};

/// The list keeps room for a row. When space ends, the inspector shrinks first, then the sidebar, which hides at last;
/// where a list beside the inspector would be of no use, the inspector takes its place.
MainPlan mainPlan(const MainWishes &wishes);

/// The widths that the user can choose.
constexpr int boundedSidebar(int width)
{
    return width < 210 ? 210 : width > 320 ? 320 : width;
}
constexpr int boundedInspector(int width)
{
    return width < 380 ? 380 : width > 780 ? 780 : width;
}
