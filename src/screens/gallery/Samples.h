#pragma once

#include "model/IssueStatus.h"
#include "model/IssueType.h"
#include "model/JiraUser.h"
#include "model/Project.h"
#include "screens/kit/painters/SymbolPainter.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Sample records for the gallery.
class Samples : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QList<IssueStatus> statuses READ statuses CONSTANT FINAL)
    Q_PROPERTY(QList<IssueType> types READ types CONSTANT FINAL)
    Q_PROPERTY(QList<Project> projects READ projects CONSTANT FINAL)
    Q_PROPERTY(QList<JiraUser> people READ people CONSTANT FINAL)
    Q_PROPERTY(QStringList labels READ labels CONSTANT FINAL)
    Q_PROPERTY(QStringList symbols READ symbols CONSTANT FINAL)
    Q_PROPERTY(JiraUser nobody READ nobody CONSTANT FINAL)

public:
    static QString text(const char *utf8) { return QString::fromUtf8(utf8); }

    QList<IssueStatus> statuses() const
    {
        return {status("Backlog", "new"),
                status("À faire", "new"),
                status("En cours", "indeterminate"),
                status("En revue", "indeterminate"),
                status("Terminé", "done"),
                status("Annulé", "done")};
    }
    QList<IssueType> types() const
    {
        return {type("Epic"), type("Story"),      type("Bug"),
                type("Task"), type("Sous-tâche"), type("Demande")};
    }
    QList<Project> projects() const
    {
        return {project("MOB", "App mobile"), project("WEB", "Plateforme web"),
                project("DS", "Design System"), project("SUP", "Support client")};
    }
    QList<JiraUser> people() const
    {
        return {person("u-me", "Noam Talvère"), person("u-nora", "Nora Valmy"),
                person("u-basile", "Basile Rochat"), person("u-maud", "Maud Ferrand")};
    }
    QStringList labels() const
    {
        return {text("ios"),    text("auth"),       text("offline"),   text("a11y"),
                text("design"), text("components"), text("tech-debt"), text("widget")};
    }
    QStringList symbols() const { return symbolNames(); }
    JiraUser nobody() const { return {}; }

private:
    static IssueStatus status(const char *name, const char *category)
    {
        return {text(name), text(name), std::optional(text(category))};
    }
    static IssueType type(const char *name)
    {
        return {text(name), text(name), QByteArrayView(name).startsWith("Sous"), 0};
    }
    static Project project(const char *key, const char *name)
    {
        return {text(key), text(key), text(name), std::nullopt, {}, false};
    }
    static JiraUser person(const char *id, const char *name)
    {
        return {text(id), text(name), std::nullopt, std::nullopt};
    }
};
