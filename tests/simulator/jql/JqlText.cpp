#include "simulator/jql/JqlText.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

QString folded(const QString &text)
{
    QString plain;
    for (const QChar character : text.normalized(QString::NormalizationForm_D)) {
        if (character.category() != QChar::Mark_NonSpacing)
            plain += character.toLower();
    }
    return plain;
}

QStringList split(const QString &folded, bool (*belongs)(QChar))
{
    QStringList words(1);
    for (const QChar character : folded) {
        if (belongs(character))
            words.last() += character;
        else if (!words.last().isEmpty())
            words += QString();
    }
    words.removeAll(QString());
    return words;
}

bool isWordOrStar(QChar character)
{
    return character.isLetterOrNumber() || character == u'*';
}

bool fits(const QStringList &words, const QString &wanted)
{
    if (!wanted.endsWith(u'*'))
        return words.contains(wanted);
    return std::ranges::any_of(
        words, [&](const QString &word) { return word.startsWith(wanted.chopped(1)); });
}

} // namespace

QStringList foldedWords(const QString &text)
{
    return split(folded(text), [](QChar character) { return character.isLetterOrNumber(); });
}

QString plainText(const QJsonObject &document)
{
    QString text = document.value("text"_L1).toString();
    for (const QJsonValue child : document.value("content"_L1).toArray())
        text += u' ' + plainText(child.toObject());
    return text;
}

bool containsWords(const SiteIssue &issue, const QString &words)
{
    QString text = issue.summary + u' ' + plainText(issue.description);
    for (const SiteComment &comment : issue.comments)
        text += u' ' + plainText(comment.body);
    const QStringList present = foldedWords(text);
    const QStringList wanted = split(folded(words), isWordOrStar);
    return !wanted.isEmpty() &&
           std::ranges::all_of(wanted, [&](const QString &word) { return fits(present, word); });
}
