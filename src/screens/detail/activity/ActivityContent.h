#pragma once

#include "screens/detail/activity/CommentList.h"
#include "state/AppStore.h"

#include <QPointer>
#include <QSet>
#include <QtQml/qqmlregistration.h>

#include <optional>

/// What is shown of the activity of an issue besides its comments.
struct ActivityFacts
{
    Q_GADGET
    QML_VALUE_TYPE(activityFacts)
    /// The comments can be filtered. Otherwise, `countText` says how many there are.
    Q_PROPERTY(bool offersFilter MEMBER offersFilter CONSTANT FINAL)
    Q_PROPERTY(QList<QString> filterTitles MEMBER filterTitles CONSTANT FINAL)
    /// The index of the filter in `filterTitles`, which is a `CommentFilter`.
    Q_PROPERTY(int filter READ filterIndex CONSTANT FINAL)
    Q_PROPERTY(QString countText MEMBER countText CONSTANT FINAL)
    /// What is said because the filter shows no comment; empty otherwise.
    Q_PROPERTY(QString emptyText MEMBER emptyText CONSTANT FINAL)
    /// The line about the creation of the issue is shown.
    Q_PROPERTY(bool showsCreation MEMBER showsCreation CONSTANT FINAL)
    Q_PROPERTY(JiraUser reporter MEMBER reporter CONSTANT FINAL)
    Q_PROPERTY(bool hasReporter MEMBER hasReporter CONSTANT FINAL)
    /// The name of the reporter or, without one, "Quelqu'un".
    Q_PROPERTY(QString reporterName MEMBER reporterName CONSTANT FINAL)
    /// The time since the creation, such as "· 4 j"; empty if unknown.
    Q_PROPERTY(QString creationAge MEMBER creationAge CONSTANT FINAL)
    /// The line about the creation as a screen reader says it.
    Q_PROPERTY(QString creationSentence MEMBER creationSentence CONSTANT FINAL)

public:
    bool offersFilter = false;
    QStringList filterTitles;
    CommentFilter filter = CommentFilter::All;
    QString countText;
    QString emptyText;
    bool showsCreation = false;
    JiraUser reporter;
    bool hasReporter = false;
    QString reporterName;
    QString creationAge;
    QString creationSentence;

    int filterIndex() const { return int(filter); }
    bool operator==(const ActivityFacts &) const = default;
};

/// The activity of an issue of the store: the line about its creation and its comments, through a filter that the user
/// chooses. Another issue and another session begin with all comments.
class ActivityContent : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    Q_PROPERTY(QString key READ key WRITE setKey NOTIFY keyChanged FINAL REQUIRED)
    Q_PROPERTY(ActivityFacts facts READ facts NOTIFY factsChanged FINAL)
    Q_PROPERTY(CommentList *comments READ comments CONSTANT FINAL)
    /// For the bodies of the comments: the account of the current user, and the calendar of dates.
    Q_PROPERTY(QString currentUserID READ currentUserID NOTIFY currentUserChanged FINAL)
    Q_PROPERTY(QString localeName READ localeName NOTIFY calendarChanged FINAL)
    Q_PROPERTY(QString timeZone READ timeZone NOTIFY calendarChanged FINAL)

public:
    using QObject::QObject;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    const QString &key() const { return m_key; }
    void setKey(const QString &key);
    const ActivityFacts &facts() const { return m_facts; }
    CommentList *comments() { return &m_comments; }
    QString currentUserID() const;
    QString localeName() const;
    QString timeZone() const;

    /// Chooses a filter by its index in the titles.
    Q_INVOKABLE void choose(int filter);
    /// True, once, for a comment that has arrived since the comments were first shown, so that its bubble can move in.
    Q_INVOKABLE bool takeArrival(const QString &id);

Q_SIGNALS:
    void storeChanged();
    void keyChanged();
    void factsChanged();
    void currentUserChanged();
    void calendarChanged();

private:
    void startAfresh();
    void update();
    void noteArrivals(const QList<Comment> &comments);

    QPointer<AppStore> m_store;
    QString m_key;
    CommentFilter m_filter = CommentFilter::All;
    ActivityFacts m_facts;
    CommentList m_comments;
    /// The comments that the issue had so far. Nothing before they are known.
    std::optional<QSet<QString>> m_known;
    QSet<QString> m_arrivals;
};
