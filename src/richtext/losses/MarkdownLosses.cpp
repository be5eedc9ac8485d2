#include "richtext/losses/MarkdownLosses.h"

#include "richtext/losses/LossCounter.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

struct Words
{
    QString one;
    QString several;
};

Words wordsFor(MarkdownLoss loss)
{
    switch (loss) {
    case MarkdownLoss::Mention:
        return {u"mention"_s, u"mentions"_s};
    case MarkdownLoss::Picture:
        return {u"image"_s, u"images"_s};
    case MarkdownLoss::Caption:
        return {u"légende"_s, u"légendes"_s};
    case MarkdownLoss::File:
        return {u"fichier joint"_s, u"fichiers joints"_s};
    case MarkdownLoss::Table:
        return {u"tableau"_s, u"tableaux"_s};
    case MarkdownLoss::Panel:
        return {u"panneau"_s, u"panneaux"_s};
    case MarkdownLoss::Expand:
        return {u"section repliable"_s, u"sections repliables"_s};
    case MarkdownLoss::Layout:
        return {u"mise en colonnes"_s, u"mises en colonnes"_s};
    case MarkdownLoss::Status:
        return {u"statut"_s, u"statuts"_s};
    case MarkdownLoss::Date:
        return {u"date"_s, u"dates"_s};
    case MarkdownLoss::Card:
        return {u"carte de lien"_s, u"cartes de lien"_s};
    case MarkdownLoss::Emoji:
        return {u"emoji"_s, u"emojis"_s};
    case MarkdownLoss::Underline:
        return {u"soulignement"_s, u"soulignements"_s};
    case MarkdownLoss::Colour:
        return {u"couleur"_s, u"couleurs"_s};
    case MarkdownLoss::Script:
        return {u"exposant ou indice"_s, u"exposants ou indices"_s};
    case MarkdownLoss::OtherStyle:
        return {u"autre mise en forme"_s, u"autres mises en forme"_s};
    case MarkdownLoss::QuotedHeading:
        return {u"titre dans une citation"_s, u"titres dans une citation"_s};
    case MarkdownLoss::QuotedRule:
        return {u"ligne horizontale dans une citation"_s,
                u"lignes horizontales dans une citation"_s};
    case MarkdownLoss::QuotedTasks:
        return {u"liste de tâches dans une citation"_s, u"listes de tâches dans une citation"_s};
    case MarkdownLoss::QuotedQuote:
        return {u"citation imbriquée"_s, u"citations imbriquées"_s};
    case MarkdownLoss::StyledCode:
        return {u"code mis en forme"_s, u"codes mis en forme"_s};
    case MarkdownLoss::ItemBlock:
        return {u"bloc sorti de sa liste"_s, u"blocs sortis de leur liste"_s};
    case MarkdownLoss::ItemTasks:
        return {u"liste de tâches imbriquée"_s, u"listes de tâches imbriquées"_s};
    case MarkdownLoss::Misread:
        return {u"passage relu autrement"_s, u"passages relus autrement"_s};
    case MarkdownLoss::Decision:
        return {u"décision"_s, u"décisions"_s};
    case MarkdownLoss::Extension:
        return {u"macro"_s, u"macros"_s};
    case MarkdownLoss::Other:
        return {u"autre élément"_s, u"autres éléments"_s};
    }
    return {};
}

} // namespace

QString MarkdownLosses::sentence() const
{
    QStringList parts;
    for (auto each = counts.cbegin(); each != counts.cend(); ++each) {
        const Words words = wordsFor(each.key());
        const QString &noun = each.value() == 1 ? words.one : words.several;
        parts.append(QString::number(each.value()) + u' ' + noun);
    }
    return parts.join(u", "_s);
}

MarkdownLosses ADFMarkdown::losses(const ADFNode &document, const QList<JiraUser> &users)
{
    LossCounter counter(users);
    counter.visit(document);
    return counter.losses();
}
