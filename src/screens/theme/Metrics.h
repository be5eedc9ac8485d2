#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Lengths in logical pixels. They are constants for C++ (`Metrics::rowGap`) and properties of a singleton for QML
/// (`Metrics.rowGap`), so that both use the same values.
class Metrics : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(int radiusCheckBox MEMBER radiusCheckBox CONSTANT FINAL)
    Q_PROPERTY(int radiusKeyCap MEMBER radiusKeyCap CONSTANT FINAL)
    Q_PROPERTY(int radiusSquare MEMBER radiusSquare CONSTANT FINAL)
    Q_PROPERTY(int radiusRow MEMBER radiusRow CONSTANT FINAL)
    Q_PROPERTY(int radiusPanel MEMBER radiusPanel CONSTANT FINAL)
    Q_PROPERTY(int radiusCard MEMBER radiusCard CONSTANT FINAL)
    Q_PROPERTY(int radiusBubble MEMBER radiusBubble CONSTANT FINAL)
    Q_PROPERTY(int radiusPopover MEMBER radiusPopover CONSTANT FINAL)
    Q_PROPERTY(int radiusRecap MEMBER radiusRecap CONSTANT FINAL)
    Q_PROPERTY(int radiusPane MEMBER radiusPane CONSTANT FINAL)
    Q_PROPERTY(int radiusToast MEMBER radiusToast CONSTANT FINAL)
    Q_PROPERTY(int radiusSheet MEMBER radiusSheet CONSTANT FINAL)
    Q_PROPERTY(int radiusPalette MEMBER radiusPalette CONSTANT FINAL)
    Q_PROPERTY(int radiusOnboarding MEMBER radiusOnboarding CONSTANT FINAL)
    Q_PROPERTY(int gapTiny MEMBER gapTiny CONSTANT FINAL)
    Q_PROPERTY(int gapSmall MEMBER gapSmall CONSTANT FINAL)
    Q_PROPERTY(int gap MEMBER gap CONSTANT FINAL)
    Q_PROPERTY(int gapMedium MEMBER gapMedium CONSTANT FINAL)
    Q_PROPERTY(int gapLarge MEMBER gapLarge CONSTANT FINAL)
    Q_PROPERTY(int gapSection MEMBER gapSection CONSTANT FINAL)
    Q_PROPERTY(int pageMargin MEMBER pageMargin CONSTANT FINAL)
    Q_PROPERTY(int panelPadding MEMBER panelPadding CONSTANT FINAL)
    Q_PROPERTY(int contentInset MEMBER contentInset CONSTANT FINAL)
    Q_PROPERTY(int toolbarHeight MEMBER toolbarHeight CONSTANT FINAL)
    Q_PROPERTY(int toolbarCentre MEMBER toolbarCentre CONSTANT FINAL)
    Q_PROPERTY(int capsuleHeight MEMBER capsuleHeight CONSTANT FINAL)
    Q_PROPERTY(int capsuleCellWidth MEMBER capsuleCellWidth CONSTANT FINAL)
    Q_PROPERTY(int capsuleInset MEMBER capsuleInset CONSTANT FINAL)
    Q_PROPERTY(int groupHeaderHeight MEMBER groupHeaderHeight CONSTANT FINAL)
    Q_PROPERTY(int groupHeaderCompactHeight MEMBER groupHeaderCompactHeight CONSTANT FINAL)
    Q_PROPERTY(int rowHeight MEMBER rowHeight CONSTANT FINAL)
    Q_PROPERTY(int rowCompactHeight MEMBER rowCompactHeight CONSTANT FINAL)
    Q_PROPERTY(int smallButton MEMBER smallButton CONSTANT FINAL)
    Q_PROPERTY(int sidebarRowHeight MEMBER sidebarRowHeight CONSTANT FINAL)
    Q_PROPERTY(int optionRowHeight MEMBER optionRowHeight CONSTANT FINAL)
    Q_PROPERTY(int optionSearchHeight MEMBER optionSearchHeight CONSTANT FINAL)
    Q_PROPERTY(int menuRowHeight MEMBER menuRowHeight CONSTANT FINAL)
    Q_PROPERTY(int menuMaxWidth MEMBER menuMaxWidth CONSTANT FINAL)
    Q_PROPERTY(int propertyChipHeight MEMBER propertyChipHeight CONSTANT FINAL)
    Q_PROPERTY(int buttonHeight MEMBER buttonHeight CONSTANT FINAL)
    Q_PROPERTY(int largeButtonHeight MEMBER largeButtonHeight CONSTANT FINAL)
    Q_PROPERTY(int filterChipHeight MEMBER filterChipHeight CONSTANT FINAL)
    Q_PROPERTY(int fieldHeight MEMBER fieldHeight CONSTANT FINAL)
    Q_PROPERTY(int keyCapHeight MEMBER keyCapHeight CONSTANT FINAL)
    Q_PROPERTY(int toastMaxWidth MEMBER toastMaxWidth CONSTANT FINAL)
    Q_PROPERTY(int tooltipHeight MEMBER tooltipHeight CONSTANT FINAL)
    Q_PROPERTY(int checkBox MEMBER checkBox CONSTANT FINAL)
    Q_PROPERTY(int statusIcon MEMBER statusIcon CONSTANT FINAL)
    Q_PROPERTY(int avatar MEMBER avatar CONSTANT FINAL)
    Q_PROPERTY(int avatarSmall MEMBER avatarSmall CONSTANT FINAL)
    Q_PROPERTY(int typeIcon MEMBER typeIcon CONSTANT FINAL)
    Q_PROPERTY(int chipHeight MEMBER chipHeight CONSTANT FINAL)
    Q_PROPERTY(int chipPadding MEMBER chipPadding CONSTANT FINAL)
    Q_PROPERTY(int chipGap MEMBER chipGap CONSTANT FINAL)
    Q_PROPERTY(int labelDot MEMBER labelDot CONSTANT FINAL)
    Q_PROPERTY(int labelDotGap MEMBER labelDotGap CONSTANT FINAL)
    Q_PROPERTY(int labelTextGap MEMBER labelTextGap CONSTANT FINAL)
    Q_PROPERTY(int dueSymbol MEMBER dueSymbol CONSTANT FINAL)
    Q_PROPERTY(int rowPadding MEMBER rowPadding CONSTANT FINAL)
    Q_PROPERTY(int rowGap MEMBER rowGap CONSTANT FINAL)
    Q_PROPERTY(int rowPicker MEMBER rowPicker CONSTANT FINAL)
    Q_PROPERTY(int rowType MEMBER rowType CONSTANT FINAL)
    Q_PROPERTY(int rowKeyMinimum MEMBER rowKeyMinimum CONSTANT FINAL)
    Q_PROPERTY(int rowKeyMaximum MEMBER rowKeyMaximum CONSTANT FINAL)
    Q_PROPERTY(int rowKeySpare MEMBER rowKeySpare CONSTANT FINAL)
    Q_PROPERTY(int rowDate MEMBER rowDate CONSTANT FINAL)
    Q_PROPERTY(int rowEvent MEMBER rowEvent CONSTANT FINAL)
    Q_PROPERTY(int rowDueCompact MEMBER rowDueCompact CONSTANT FINAL)
    Q_PROPERTY(int rowSummaryMinimum MEMBER rowSummaryMinimum CONSTANT FINAL)
    Q_PROPERTY(int rowFillInset MEMBER rowFillInset CONSTANT FINAL)
    Q_PROPERTY(int focusBarWidth MEMBER focusBarWidth CONSTANT FINAL)
    Q_PROPERTY(int focusBarInset MEMBER focusBarInset CONSTANT FINAL)
    Q_PROPERTY(int cardPadding MEMBER cardPadding CONSTANT FINAL)
    Q_PROPERTY(int cardHead MEMBER cardHead CONSTANT FINAL)
    Q_PROPERTY(int cardFoot MEMBER cardFoot CONSTANT FINAL)
    Q_PROPERTY(int cardGap MEMBER cardGap CONSTANT FINAL)
    Q_PROPERTY(int cardPartGap MEMBER cardPartGap CONSTANT FINAL)
    Q_PROPERTY(int cardPriority MEMBER cardPriority CONSTANT FINAL)
    Q_PROPERTY(int cardLabelMinimum MEMBER cardLabelMinimum CONSTANT FINAL)
    Q_PROPERTY(int boardCardTypical MEMBER boardCardTypical CONSTANT FINAL)
    Q_PROPERTY(int boardColumnWidth MEMBER boardColumnWidth CONSTANT FINAL)
    Q_PROPERTY(int boardColumnGap MEMBER boardColumnGap CONSTANT FINAL)
    Q_PROPERTY(int boardPadding MEMBER boardPadding CONSTANT FINAL)
    Q_PROPERTY(int boardColumnHead MEMBER boardColumnHead CONSTANT FINAL)
    Q_PROPERTY(int boardEmptyBox MEMBER boardEmptyBox CONSTANT FINAL)
    Q_PROPERTY(int paletteWidth MEMBER paletteWidth CONSTANT FINAL)
    Q_PROPERTY(int paletteTop MEMBER paletteTop CONSTANT FINAL)
    Q_PROPERTY(int paletteFieldHeight MEMBER paletteFieldHeight CONSTANT FINAL)
    Q_PROPERTY(int paletteTitleHeight MEMBER paletteTitleHeight CONSTANT FINAL)
    Q_PROPERTY(int paletteMaxHeight MEMBER paletteMaxHeight CONSTANT FINAL)
    Q_PROPERTY(int paneMargin MEMBER paneMargin CONSTANT FINAL)
    Q_PROPERTY(int sidebarMinWidth MEMBER sidebarMinWidth CONSTANT FINAL)
    Q_PROPERTY(int sidebarWidth MEMBER sidebarWidth CONSTANT FINAL)
    Q_PROPERTY(int sidebarMaxWidth MEMBER sidebarMaxWidth CONSTANT FINAL)
    Q_PROPERTY(int inspectorMinWidth MEMBER inspectorMinWidth CONSTANT FINAL)
    Q_PROPERTY(int inspectorWidth MEMBER inspectorWidth CONSTANT FINAL)
    Q_PROPERTY(int inspectorMaxWidth MEMBER inspectorMaxWidth CONSTANT FINAL)
    Q_PROPERTY(int toastBottom MEMBER toastBottom CONSTANT FINAL)
    Q_PROPERTY(int toastBottomAboveBar MEMBER toastBottomAboveBar CONSTANT FINAL)
    Q_PROPERTY(int selectionBarHeight MEMBER selectionBarHeight CONSTANT FINAL)
    Q_PROPERTY(int selectionBarBottom MEMBER selectionBarBottom CONSTANT FINAL)
    Q_PROPERTY(int selectionBarRoom MEMBER selectionBarRoom CONSTANT FINAL)
    Q_PROPERTY(int scrollThumbWidth MEMBER scrollThumbWidth CONSTANT FINAL)
    Q_PROPERTY(int scrollFade MEMBER scrollFade CONSTANT FINAL)

public:
    // Radii

    static constexpr int radiusCheckBox = 4;
    static constexpr int radiusKeyCap = 5;
    /// For small icon buttons, the workspace square and a cell under the pointer.
    static constexpr int radiusSquare = 6;
    /// For list rows, group headers, option rows, fields and tooltips.
    static constexpr int radiusRow = 8;
    static constexpr int radiusPanel = 10;
    static constexpr int radiusCard = 11;
    /// For menus, bubbles, form cards and tiles.
    static constexpr int radiusBubble = 12;
    /// For popovers and board columns.
    static constexpr int radiusPopover = 14;
    /// For the header of a recap.
    static constexpr int radiusRecap = 16;
    /// For the sidebar, the inspector and the breadcrumb.
    static constexpr int radiusPane = 18;
    static constexpr int radiusToast = 20;
    /// For the composer and for sheets.
    static constexpr int radiusSheet = 22;
    static constexpr int radiusPalette = 24;
    static constexpr int radiusOnboarding = 32;

    // Spacing

    static constexpr int gapTiny = 4;
    static constexpr int gapSmall = 6;
    /// Between controls.
    static constexpr int gap = 8;
    static constexpr int gapMedium = 10;
    static constexpr int gapLarge = 14;
    /// Between the sections of a page.
    static constexpr int gapSection = 18;
    static constexpr int pageMargin = 24;
    /// Between the edge of a panel and its content.
    static constexpr int panelPadding = 12;
    /// Between the edge of the detail column and what stands above the list.
    static constexpr int contentInset = 20;

    // Heights of controls

    static constexpr int toolbarHeight = 56;
    /// The distance of the centres of title, capsules and workspace row from the top edge.
    static constexpr int toolbarCentre = 28;
    /// Toolbar capsules, round buttons, search fields.
    static constexpr int capsuleHeight = 32;
    /// A cell inside a capsule, 28 high.
    static constexpr int capsuleCellWidth = 34;
    /// Between the edge of a capsule and its cells.
    static constexpr int capsuleInset = 2;
    static constexpr int groupHeaderHeight = 36;
    static constexpr int groupHeaderCompactHeight = 30;
    static constexpr int rowHeight = 38;
    static constexpr int rowCompactHeight = 31;
    static constexpr int smallButton = 22;
    static constexpr int sidebarRowHeight = 30;
    static constexpr int optionRowHeight = 32;
    static constexpr int optionSearchHeight = 38;
    static constexpr int menuRowHeight = 26;
    /// Wider titles in menus are elided.
    static constexpr int menuMaxWidth = 360;
    static constexpr int propertyChipHeight = 28;
    static constexpr int buttonHeight = 30;
    static constexpr int largeButtonHeight = 40;
    static constexpr int filterChipHeight = 26;
    static constexpr int fieldHeight = 28;
    static constexpr int keyCapHeight = 18;
    static constexpr int toastMaxWidth = 460;
    static constexpr int tooltipHeight = 26;

    // Small things of rows, cards and forms

    /// The side of a check box.
    static constexpr int checkBox = 14;
    /// The side of a status and of a priority in a row.
    static constexpr int statusIcon = 14;
    /// The side of a person's picture in a row and on a card.
    static constexpr int avatar = 18;
    /// The same in the header of a group, in a chip and in the event of a recap.
    static constexpr int avatarSmall = 16;
    /// The side of the square of an issue type.
    static constexpr int typeIcon = 13;
    /// Labels and due dates.
    static constexpr int chipHeight = 19;
    /// Between the edge of a chip and its dot or symbol, and its text.
    static constexpr int chipPadding = 7;
    /// Between two chips, and between the symbol and the text of a due date.
    static constexpr int chipGap = 4;
    /// The side of the dot of a label.
    static constexpr int labelDot = 7;
    /// Between dots that stand for labels.
    static constexpr int labelDotGap = 3;
    /// Between the dot and the name of a label.
    static constexpr int labelTextGap = 5;
    /// The side of the calendar of a due date.
    static constexpr int dueSymbol = 12;

    // The columns of a row of the list

    /// Between the edge of a row and its first and last column.
    static constexpr int rowPadding = 12;
    /// Between two columns.
    static constexpr int rowGap = 10;
    /// The side of a cell whose value can be changed: priority, status, assignee.
    static constexpr int rowPicker = 22;
    /// The width of the column of types.
    static constexpr int rowType = 14;
    /// The limits of the column of keys, and what it is wider than its widest key.
    static constexpr int rowKeyMinimum = 36;
    static constexpr int rowKeyMaximum = 150;
    static constexpr int rowKeySpare = 4;
    /// The width of the last column with relative dates, and with the events of a recap.
    static constexpr int rowDate = 54;
    static constexpr int rowEvent = 132;
    /// A due date without its text.
    static constexpr int rowDueCompact = 26;
    /// The width below which labels and due dates give way to the summary.
    static constexpr int rowSummaryMinimum = 170;
    /// Between the edge of a row and its fill, above and below.
    static constexpr int rowFillInset = 1;
    /// The bar at the left edge of the focused row, and its distance from the row's upper and lower edge.
    static constexpr int focusBarWidth = 2;
    static constexpr int focusBarInset = 9;

    // Cards of the board

    /// Between the edge of a card and its parts.
    static constexpr int cardPadding = 12;
    /// The line with type, key and assignee.
    static constexpr int cardHead = 18;
    /// The line with priority, due date and labels.
    static constexpr int cardFoot = 20;
    /// Between the parts of a line.
    static constexpr int cardGap = 6;
    /// Between the lines and the summary.
    static constexpr int cardPartGap = 8;
    /// The side of the priority.
    static constexpr int cardPriority = 12;
    /// The width of a label that has room for its dot only.
    static constexpr int cardLabelMinimum = 26;

    // The board

    /// The height of a card with a title of two lines, with the gap below it.
    static constexpr int boardCardTypical = 114;
    static constexpr int boardColumnWidth = 296;
    static constexpr int boardColumnGap = 12;
    /// Between the edge of the board and the first column.
    static constexpr int boardPadding = 16;
    /// The title of a column.
    static constexpr int boardColumnHead = 28;
    /// The box in a column without cards.
    static constexpr int boardEmptyBox = 64;

    // The palette

    static constexpr int paletteWidth = 640;
    static constexpr int paletteTop = 112;
    static constexpr int paletteFieldHeight = 52;
    /// The title of a section, above its first row.
    static constexpr int paletteTitleHeight = 29;
    /// The maximum height of all rows together. Further rows are reached by scrolling.
    static constexpr int paletteMaxHeight = 420;

    // The main window

    static constexpr int paneMargin = 8;
    static constexpr int sidebarMinWidth = 210;
    static constexpr int sidebarWidth = 240;
    static constexpr int sidebarMaxWidth = 320;
    static constexpr int inspectorMinWidth = 380;
    static constexpr int inspectorWidth = 500;
    static constexpr int inspectorMaxWidth = 780;
    /// The distance of toasts from the window's lower edge, normally and above the selection bar.
    static constexpr int toastBottom = 24;
    static constexpr int toastBottomAboveBar = 84;
    static constexpr int selectionBarHeight = 52;
    /// The distance of the selection bar from the lower edge.
    static constexpr int selectionBarBottom = 20;
    /// Space below the last row, so that it can be scrolled clear of the selection bar: the height of the bar, its
    /// distance from the edge, and a gap.
    static constexpr int selectionBarRoom = 84;
    static constexpr int scrollThumbWidth = 6;
    static constexpr int scrollFade = 16;
};
