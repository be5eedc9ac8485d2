#include "screens/documents/content/PanelStyle.h"

using namespace Qt::StringLiterals;

PanelStyle PanelStyle::of(const std::optional<QString> &panelType)
{
    const QString type = panelType.value_or(QString());
    if (type == u"warning")
        return {u"exclamationmark.triangle.fill"_s, PanelColor::Orange, u"Avertissement"_s};
    if (type == u"error")
        return {u"xmark.octagon.fill"_s, PanelColor::Red, u"Erreur"_s};
    if (type == u"success")
        return {u"checkmark.circle.fill"_s, PanelColor::Green, u"Succès"_s};
    if (type == u"note")
        return {u"note.text"_s, PanelColor::Purple, u"Note"_s};
    return {u"info.circle.fill"_s, PanelColor::Blue, u"Information"_s};
}
