#include "update/ui/UpdateTexts.h"

#include "model/dates/DateParts.h"
#include "richtext/ADFMarkdown.h"

using namespace Qt::StringLiterals;

std::optional<UpdateLabel> UpdateTexts::badge(const UpdateState &state)
{
    const QString version = state.releaseOrEmpty().version;
    switch (state.kind()) {
    case UpdateState::Kind::Available:
        return UpdateLabel{.title = u"Velmora "_s + version + u" disponible"_s,
                           .subtitle = u"Télécharger"_s,
                           .symbol = u"arrow.down.circle.fill"_s};
    case UpdateState::Kind::Downloading:
        return UpdateLabel{.title = u"Téléchargement de "_s + version,
                           .subtitle = u"Vérification de la signature"_s,
                           .symbol = {}};
    case UpdateState::Kind::Ready:
        return UpdateLabel{.title = u"Velmora "_s + version + u" prête"_s,
                           .subtitle = u"Redémarrer pour installer"_s,
                           .symbol = u"sparkles"_s};
    default:
        return std::nullopt;
    }
}

UpdateLabel UpdateTexts::status(const UpdateState &state)
{
    const auto label = [](const QString &title, const QString &symbol) {
        return UpdateLabel{.title = title, .subtitle = {}, .symbol = symbol};
    };
    const QString version = state.releaseOrEmpty().version;
    switch (state.kind()) {
    case UpdateState::Kind::Idle:
        return label(u"Pas encore vérifié"_s, u"clock"_s);
    case UpdateState::Kind::Checking:
        return label(u"Recherche…"_s, u"magnifyingglass"_s);
    case UpdateState::Kind::UpToDate:
        return label(u"Velmora est à jour"_s, u"checkmark.seal.fill"_s);
    case UpdateState::Kind::Available:
        return label(u"Version "_s + version + u" disponible"_s, u"arrow.down.circle"_s);
    case UpdateState::Kind::Downloading:
        return label(u"Téléchargement de "_s + version, u"arrow.down.circle"_s);
    case UpdateState::Kind::Ready:
        return label(u"Version "_s + version + u" prête"_s, u"sparkles"_s);
    case UpdateState::Kind::Installing:
        return label(u"Installation…"_s, u"gearshape"_s);
    case UpdateState::Kind::Failed:
        return label(state.failureOrEmpty(), u"exclamationmark.triangle"_s);
    }
    Q_UNREACHABLE();
}

QString UpdateTexts::footnote(const QString &bundledFeed, const QString &customFeed)
{
    if (bundledFeed.isEmpty() && customFeed.trimmed().isEmpty())
        return u"Aucun canal configuré : colle l'adresse du fichier latest.json publié par "
               "scripts/release.sh."_s;
    return u"Chaque mise à jour est vérifiée (empreinte SHA-256 et signature du même développeur) "
           "avant installation."_s;
}

QString UpdateTexts::feedPrompt(const QString &bundledFeed)
{
    return bundledFeed.isEmpty() ? u"https://…/velmora/latest.json"_s : bundledFeed;
}

QString UpdateTexts::lastCheck(const QDateTime &time, const UserCalendar &calendar)
{
    const QLocale &locale = calendar.locale;
    const QString joint = locale.language() == QLocale::French ? u" à "_s : u", "_s;
    return dayShortMonthAndYear(calendar.day(time), locale) + joint +
           locale.toString(time.toTimeZone(calendar.zone).time(), QLocale::ShortFormat);
}

std::optional<ADFNode> UpdateTexts::notes(const QString &markdown)
{
    if (markdown.trimmed().isEmpty())
        return std::nullopt;
    QString text = markdown;
    text.replace(u"\r\n"_s, u"\n"_s);
    ADFNode document;
    document.type = u"doc"_s;
    document.version = 1;
    document.content = ADFMarkdown::parseBlocks(text.split(u'\n'));
    return document;
}

QString UpdateTexts::whatsNewTitle(const QString &version)
{
    return u"Nouveautés de Velmora "_s + version;
}
