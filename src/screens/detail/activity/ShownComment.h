#pragma once

#include "model/dates/UserCalendar.h"
#include "screens/detail/activity/CommentReaders.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// A comment as its bubble shows it. The texts that others have chosen have their invisible characters made visible.
struct ShownComment
{
    Q_GADGET
    QML_VALUE_TYPE(shownComment)
    Q_PROPERTY(QString id MEMBER key CONSTANT FINAL)
    /// The author with the name that is shown. Empty without an author.
    Q_PROPERTY(JiraUser author MEMBER author CONSTANT FINAL)
    Q_PROPERTY(bool hasAuthor MEMBER hasAuthor CONSTANT FINAL)
    /// The name of the author or, without one, "Inconnu".
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    /// The time since it was written, such as "4 h", and when that was in full. Both empty if unknown.
    Q_PROPERTY(QString age MEMBER age CONSTANT FINAL)
    Q_PROPERTY(QString date MEMBER date CONSTANT FINAL)
    /// What a screen reader says of the comment: its author, its time and who can read it.
    Q_PROPERTY(QString sentence MEMBER sentence CONSTANT FINAL)
    Q_PROPERTY(bool isNote MEMBER isNote CONSTANT FINAL)
    /// The tag; its text is empty if there is none.
    Q_PROPERTY(QString tagText READ tagText CONSTANT FINAL)
    Q_PROPERTY(QString tagHint READ tagHint CONSTANT FINAL)
    /// The body contains something to show.
    Q_PROPERTY(bool hasBody MEMBER hasBody CONSTANT FINAL)
    Q_PROPERTY(ADFNode body MEMBER body CONSTANT FINAL)
    /// The comment may refer to files: it names attachments, or its body contains links.
    Q_PROPERTY(bool hasReferences MEMBER hasReferences CONSTANT FINAL)

public:
    /// The identifier of the comment, as the key of its row.
    QString key;
    JiraUser author;
    bool hasAuthor = false;
    QString name;
    QString age;
    QString date;
    QString sentence;
    bool isNote = false;
    CommentReaders readers;
    bool hasBody = false;
    ADFNode body;
    bool hasReferences = false;

    const QString &tagText() const { return readers.text; }
    const QString &tagHint() const { return readers.hint; }

    static ShownComment of(const Comment &comment, ProjectKind project, const QDateTime &now,
                           const UserCalendar &calendar);
    bool operator==(const ShownComment &) const = default;
};

/// The user with the name that is shown: a name of blanks becomes `fallback`.
JiraUser withShownName(const JiraUser &user, const QString &fallback);

/// "31 octobre 2026 à 14:32". Empty for an invalid date.
QString longDateAndTime(const QDateTime &date, const UserCalendar &calendar);
