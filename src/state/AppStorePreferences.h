#pragma once

#include "model/DisplayProperties.h"
#include "platform/Desktop.h"
#include "platform/Preferences.h"
#include "state/AppStoreFields.h"

/// The user's choices, which outlive sessions and the process. Each is read once, when the store is created, and stored
/// when it changes. An unknown stored value is read as the default; it remains stored until the preference changes.
class AppStorePreferences : public AppStoreFields
{
    Q_OBJECT
    QML_ANONYMOUS

    Q_PROPERTY(Model::LayoutMode layout READ layout WRITE setLayout NOTIFY layoutChanged FINAL)
    Q_PROPERTY(
        Model::Grouping grouping READ grouping WRITE setGrouping NOTIFY groupingChanged FINAL)
    Q_PROPERTY(
        Model::Ordering ordering READ ordering WRITE setOrdering NOTIFY orderingChanged FINAL)
    Q_PROPERTY(bool showCompleted READ showCompleted WRITE setShowCompleted NOTIFY
                   showCompletedChanged FINAL)
    Q_PROPERTY(DisplayProperties display READ display NOTIFY displayChanged FINAL)
    Q_PROPERTY(
        QStringList favoriteProjects READ favoriteProjects NOTIFY favoriteProjectsChanged FINAL)
    Q_PROPERTY(Model::AppearanceMode appearance READ appearance WRITE setAppearance NOTIFY
                   appearanceChanged FINAL)
    Q_PROPERTY(Model::AccentChoice accentChoice READ accentChoice WRITE setAccentChoice NOTIFY
                   accentChoiceChanged FINAL)
    Q_PROPERTY(Model::RowDensity density READ density WRITE setDensity NOTIFY densityChanged FINAL)
    Q_PROPERTY(bool activityTeamWide READ activityTeamWide WRITE setActivityTeamWide NOTIFY
                   activityTeamWideChanged FINAL)
    Q_PROPERTY(bool isDark READ isDark NOTIFY isDarkChanged FINAL)
    Q_PROPERTY(bool prefersReducedMotion READ prefersReducedMotion NOTIFY
                   prefersReducedMotionChanged FINAL)

public:
    LayoutMode layout() const { return *m_layout; }
    void setLayout(LayoutMode layout);
    Grouping grouping() const { return *m_grouping; }
    void setGrouping(Grouping grouping);
    Ordering ordering() const { return *m_ordering; }
    void setOrdering(Ordering ordering);
    bool showCompleted() const { return *m_showCompleted; }
    void setShowCompleted(bool show);
    const DisplayProperties &display() const { return *m_display; }
    void setDisplay(const DisplayProperties &display);
    const QStringList &favoriteProjects() const { return *m_favoriteProjects; }
    /// Removes the project from the favorites, or appends it.
    Q_INVOKABLE void toggleFavorite(const QString &projectKey);
    AppearanceMode appearance() const { return *m_appearance; }
    void setAppearance(AppearanceMode mode);
    AccentChoice accentChoice() const { return *m_accentChoice; }
    void setAccentChoice(AccentChoice choice);
    RowDensity density() const { return *m_density; }
    void setDensity(RowDensity density);
    bool activityTeamWide() const { return *m_activityTeamWide; }
    void setActivityTeamWide(bool teamWide);
    /// Whether the current appearance is dark: the user's choice, or the desktop's setting if the user follows the
    /// desktop.
    bool isDark() const { return *m_isDark; }
    bool prefersReducedMotion() const { return *m_prefersReducedMotion; }

Q_SIGNALS:
    void layoutChanged();
    void groupingChanged();
    void orderingChanged();
    void showCompletedChanged();
    void displayChanged();
    void favoriteProjectsChanged();
    void appearanceChanged();
    void accentChoiceChanged();
    void densityChanged();
    void activityTeamWideChanged();
    void isDarkChanged();
    void prefersReducedMotionChanged();

protected:
    /// Both references must outlive the store.
    AppStorePreferences(Preferences &preferences, Desktop &desktop, QObject *parent);

    /// Reads the stored values into the fields. Must be called while a batch is open.
    void readPreferences();

private:
    using Own = AppStorePreferences;
    template <typename T>
    using Preference = Observed<AppStorePreferences, T>;

    void refreshAppearance();

    Preferences &m_preferences;
    Desktop &m_desktop;

protected:
    Preference<LayoutMode> m_layout{this, &Own::layoutChanged, List};
    Preference<Grouping> m_grouping{this, &Own::groupingChanged, List};
    Preference<Ordering> m_ordering{this, &Own::orderingChanged, List};
    Preference<bool> m_showCompleted{this, &Own::showCompletedChanged, List};
    Preference<DisplayProperties> m_display{this, &Own::displayChanged};
    Preference<QStringList> m_favoriteProjects{this, &Own::favoriteProjectsChanged, Sidebar};
    Preference<AppearanceMode> m_appearance{this, &Own::appearanceChanged};
    Preference<AccentChoice> m_accentChoice{this, &Own::accentChoiceChanged};
    Preference<RowDensity> m_density{this, &Own::densityChanged};
    Preference<bool> m_activityTeamWide{this, &Own::activityTeamWideChanged};
    Preference<bool> m_isDark{this, &Own::isDarkChanged};
    Preference<bool> m_prefersReducedMotion{this, &Own::prefersReducedMotionChanged};
};
