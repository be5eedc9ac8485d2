#include "model/JiraUser.h"

#include <QHashFunctions>
#include <QStringList>
#include <QTextBoundaryFinder>

using namespace Qt::StringLiterals;

namespace {

QStringList words(const QString &name)
{
    return name.split(u' ', Qt::SkipEmptyParts);
}

/// The first user-perceived character, with its combining accents and complete surrogate pairs.
QString firstCharacter(const QString &word)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, word);
    return word.left(finder.toNextBoundary());
}

} // namespace

QString JiraUser::initials() const
{
    QString letters;
    for (const QString &word : words(name).mid(0, 2))
        letters += firstCharacter(word);
    return letters.isEmpty() ? u"?"_s : letters.toUpper();
}

QString JiraUser::firstName() const
{
    return words(name).value(0, name);
}

size_t qHash(const JiraUser &user, size_t seed)
{
    seed = qHashMulti(seed, user.id, user.name);
    seed = qHashMulti(seed, user.email.has_value(), user.email.value_or(QString()));
    return qHashMulti(seed, user.avatarURL.has_value(), user.avatarURL.value_or(QUrl()));
}
