#pragma once

#include <QString>

#include <optional>

/// The colours of panels by their role. The view chooses the colours of the current appearance.
enum class PanelColor { Blue, Orange, Red, Green, Purple };

/// The look of a panel.
struct PanelStyle
{
    /// The name of a symbol of the kit.
    QString icon;
    PanelColor color = PanelColor::Blue;
    /// What a screen reader says of the panel, in French.
    QString meaning;

    /// The style for the attribute "panelType". An unknown or absent type is an information panel.
    static PanelStyle of(const std::optional<QString> &panelType);

    bool operator==(const PanelStyle &) const = default;
};
