#include "demo/DemoSeed.h"

using namespace Qt::StringLiterals;

namespace DemoSeed {

const QList<JiraUser> &users()
{
    static const QList<JiraUser> table{
        {u"u-me"_s, u"Noam Talvère"_s, u"noam.talvere@orvantis.example"_s, {}},
        {u"u-nora"_s, u"Nora Valmy"_s, {}, {}},
        {u"u-basile"_s, u"Basile Rochat"_s, {}, {}},
        {u"u-maud"_s, u"Maud Ferrand"_s, {}, {}},
        {u"u-yann"_s, u"Yann Kervel"_s, {}, {}},
        {u"u-elsa"_s, u"Elsa Karoubi"_s, {}, {}},
    };
    return table;
}

const JiraUser &me()
{
    return users().first();
}

const JiraUser &customer()
{
    static const JiraUser person{
        u"u-client"_s, u"Odile Marchais"_s, u"odile.marchais@ateliers-marchais.example"_s, {}};
    return person;
}

const JiraUser &user(Person person)
{
    return person == Person::Customer ? customer() : users().at(qsizetype(person));
}

const QList<IssueStatus> &statuses()
{
    static const QList<IssueStatus> table{
        {u"1"_s, u"Backlog"_s, u"new"_s},
        {u"2"_s, u"À faire"_s, u"new"_s},
        {u"3"_s, u"En cours"_s, u"indeterminate"_s},
        {u"4"_s, u"En revue"_s, u"indeterminate"_s},
        {u"5"_s, u"Terminé"_s, u"done"_s},
        {u"6"_s, u"Annulé"_s, u"done"_s},
    };
    return table;
}

const QList<IssuePriority> &priorities()
{
    static const QList<IssuePriority> table{
        {u"1"_s, u"Highest"_s}, {u"2"_s, u"High"_s},   {u"3"_s, u"Medium"_s},
        {u"4"_s, u"Low"_s},     {u"5"_s, u"Lowest"_s},
    };
    return table;
}

const QList<IssueType> &issueTypes()
{
    static const QList<IssueType> table{
        {u"10000"_s, u"Epic"_s, false, 1},       {u"10001"_s, u"Story"_s, false, 0},
        {u"10002"_s, u"Tâche"_s, false, 0},      {u"10003"_s, u"Bug"_s, false, 0},
        {u"10004"_s, u"Sous-tâche"_s, true, -1},
    };
    return table;
}

const QList<Project> &projects()
{
    static const QList<Project> table{
        {u"100"_s, u"MOB"_s, u"App mobile"_s, {}, issueTypes(), false},
        {u"200"_s, u"WEB"_s, u"Plateforme web"_s, {}, issueTypes(), false},
        {u"300"_s, u"DS"_s, u"Design System"_s, {}, issueTypes(), false},
        // Requests of customers are stories, tasks or bugs.
        {u"400"_s, u"SUP"_s, u"Support client"_s, {}, issueTypes().mid(1, 3), true},
    };
    return table;
}

} // namespace DemoSeed
