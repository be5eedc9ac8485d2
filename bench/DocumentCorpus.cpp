#include "DocumentCorpus.h"

#include <array>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array words{
    u"la",      u"session",   u"est",      u"fermée",     u"après",   u"une",       u"mise",
    u"à",       u"jour",      u"du",       u"serveur",    u"et",      u"le",        u"compte",
    u"reste",   u"bloqué",    u"pendant",  u"l'export",   u"de",      u"données",   u"quand",
    u"on",      u"clique",    u"sur",      u"l'icône",    u"dans",    u"barre",     u"latérale",
    u"d'abord", u"vérifier",  u"que",      u"chaque",     u"requête", u"contient",  u"jeton",
    u"valide",  u"sinon",     u"répondre", u"par",        u"erreur",  u"401",       u"plutôt",
    u"qu'un",   u"écran",     u"vide",     u"(version",   u"4.2)",    u"depuis",    u"mardi",
    u"fichier", u"nommé",     u"rapport",  u"n'apparaît", u"pas",     u"cf.",       u"WEB-1204",
    u"ou",      u"seulement", u"si",       u"réseau",     u"lent",    u"coupe-feu", u"désactivé"};

constexpr std::array people{u"@Noam Talvère", u"@Inès Okafor", u"@Lou Marchetti",
                            u"@Zoé Lindqvist"};

/// Writes texts from a generator of random numbers. `std::mt19937` gives the same numbers on every machine, which the
/// distributions of the standard library do not.
class Author
{
public:
    QString document()
    {
        QStringList blocks;
        const int count = between(3, 12);
        for (int i = 0; i < count; ++i)
            blocks.append(block());
        return blocks.join(u"\n\n"_s);
    }

private:
    int between(int least, int most)
    {
        return least + int(m_random() % std::mt19937::result_type(most - least + 1));
    }
    bool happens(int percent) { return between(1, 100) <= percent; }
    template <typename Texts>
    QString oneOf(const Texts &texts)
    {
        return QString::fromUtf16(texts[m_random() % texts.size()]);
    }

    QString phrase(int least, int most)
    {
        QStringList chosen;
        const int count = between(least, most);
        for (int i = 0; i < count; ++i)
            chosen.append(oneOf(words));
        return chosen.join(u' ');
    }

    /// Markup that is rare, or nested.
    QString rarePart(const QString &text)
    {
        const std::array parts{u"**[%1](https://wiki.exemple.fr/a)**"_s,
                               u"***%1***"_s,
                               u"**%1 `code`**"_s,
                               u"<https://exemple.fr/page> %1"_s,
                               u"\\*%1 &amp; 2*3*4"_s,
                               u"![%1](https://exemple.fr/a.png)"_s};
        return parts[m_random() % parts.size()].arg(text);
    }

    /// A part of a sentence; six of ten have no markup.
    QString part()
    {
        const int percent = between(1, 100);
        const QString text = phrase(1, 4);
        if (percent <= 7)
            return u"**"_s + text + u"**"_s;
        if (percent <= 11)
            return u"*"_s + text + u"*"_s;
        if (percent <= 13)
            return u"_"_s + text + u"_"_s;
        if (percent <= 20)
            return u"`refresh_token`"_s;
        if (percent <= 27)
            return u"["_s + text + u"](https://wiki.exemple.fr/pages/"_s +
                   QString::number(between(1000, 9999)) + u"?vue=large)"_s;
        if (percent <= 30)
            return u"~~"_s + text + u"~~"_s;
        if (percent <= 36)
            return oneOf(people) + u',';
        if (percent <= 38)
            return rarePart(text);
        return phrase(3, 8);
    }

    QString sentence()
    {
        QStringList parts;
        const int count = between(1, 4);
        for (int i = 0; i < count; ++i)
            parts.append(part());
        return parts.join(u' ') + u'.';
    }

    QString line(int sentences)
    {
        QStringList chosen;
        for (int i = 0; i < sentences; ++i)
            chosen.append(sentence());
        return chosen.join(u' ');
    }

    QString lines(int least, int most, const QString &start)
    {
        QStringList chosen;
        const int count = between(least, most);
        for (int i = 0; i < count; ++i)
            chosen.append(start + line(1));
        return chosen.join(u'\n');
    }

    QString paragraph()
    {
        QString text = line(between(1, 4));
        if (happens(25))
            text += u'\n' + line(1);
        return text;
    }

    QString bulletList()
    {
        QString text = lines(2, 5, u"- "_s);
        if (happens(30))
            text += u'\n' + lines(1, 3, u"  - "_s) + u"\n- "_s + line(1);
        return text;
    }

    QString orderedList()
    {
        QStringList items;
        const int count = between(2, 6);
        for (int i = 1; i <= count; ++i)
            items.append(QString::number(i) + u". "_s + line(1));
        return items.join(u'\n');
    }

    QString code()
    {
        QString text = happens(60) ? u"```swift"_s : u"```"_s;
        const int count = between(2, 10);
        for (int i = 0; i < count; ++i)
            text +=
                u"\n    let value"_s + QString::number(i) + u" = try await api.refresh(token)"_s;
        return text + u"\n```"_s;
    }

    QString row(int columns)
    {
        QString text = u"|"_s;
        for (int i = 0; i < columns; ++i)
            text += u' ' + phrase(1, 3) + u" |"_s;
        return text;
    }

    QString table()
    {
        const int columns = between(2, 4);
        QString text = row(columns) + u"\n|"_s + u" --- |"_s.repeated(columns);
        const int count = between(2, 5);
        for (int i = 0; i < count; ++i)
            text += u'\n' + row(columns);
        return text;
    }

    QString block()
    {
        const int percent = between(1, 100);
        if (percent <= 45)
            return paragraph();
        if (percent <= 57)
            return u"## "_s + phrase(1, 5);
        if (percent <= 72)
            return bulletList();
        if (percent <= 79)
            return orderedList();
        if (percent <= 85)
            return lines(2, 5, happens(40) ? u"- [x] "_s : u"- [ ] "_s);
        if (percent <= 91)
            return code();
        if (percent <= 95)
            return table();
        return percent <= 98 ? lines(1, 3, u"> "_s) : u"---"_s;
    }

    std::mt19937 m_random{20'240'229};
};

} // namespace

QStringList documentCorpus(int count)
{
    Author author;
    QStringList documents;
    documents.reserve(count);
    for (int i = 0; i < count; ++i)
        documents.append(author.document());
    return documents;
}
