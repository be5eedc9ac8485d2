#pragma once

#include "platform/SystemCalendar.h"
#include "update/UpdateAlert.h"
#include "update/Updater.h"
#include "update/ui/UpdateTexts.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// What the screens of updates show: the texts of the updater's state, release notes as documents, and the alert that
/// ends a check from the menu. One object serves all windows.
class UpdateScreens : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made with the windows")
    Q_PROPERTY(Updater *updater READ updater CONSTANT FINAL)
    // The badge
    Q_PROPERTY(bool hasBadge READ hasBadge NOTIFY stateChanged FINAL)
    Q_PROPERTY(UpdateLabel badge READ badge NOTIFY stateChanged FINAL)
    // The settings
    Q_PROPERTY(UpdateLabel status READ status NOTIFY stateChanged FINAL)
    Q_PROPERTY(bool offersCheck READ offersCheck NOTIFY stateChanged FINAL)
    Q_PROPERTY(bool offersInstall READ offersInstall NOTIFY stateChanged FINAL)
    Q_PROPERTY(bool hasNotes READ hasNotes NOTIFY notesChanged FINAL)
    Q_PROPERTY(ADFNode notes READ notes NOTIFY notesChanged FINAL)
    Q_PROPERTY(QString footnote READ footnote NOTIFY feedChanged FINAL)
    Q_PROPERTY(QString feedPrompt READ feedPrompt CONSTANT FINAL)
    Q_PROPERTY(QString lastCheck READ lastCheck NOTIFY lastCheckChanged FINAL)
    // The sheet after an update
    Q_PROPERTY(QString whatsNewTitle READ whatsNewTitle NOTIFY whatsNewChanged FINAL)
    Q_PROPERTY(bool hasWhatsNewNotes READ hasWhatsNewNotes NOTIFY whatsNewChanged FINAL)
    Q_PROPERTY(ADFNode whatsNewNotes READ whatsNewNotes NOTIFY whatsNewChanged FINAL)
    // The alert
    Q_PROPERTY(bool hasAlert READ hasAlert NOTIFY alertChanged FINAL)
    Q_PROPERTY(UpdateAlert alert READ alert NOTIFY alertChanged FINAL)

public:
    /// The updater and the calendar must outlive this object.
    UpdateScreens(Updater &updater, SystemCalendar &calendar, QObject *parent = nullptr);

    Updater *updater() const { return &m_updater; }
    bool hasBadge() const { return UpdateTexts::badge(m_updater.state()).has_value(); }
    /// Empty without one.
    UpdateLabel badge() const;
    UpdateLabel status() const { return UpdateTexts::status(m_updater.state()); }
    /// The settings offer to look for a release: nothing is under way, and none is ready.
    bool offersCheck() const;
    bool offersInstall() const { return m_updater.state().is(UpdateState::Kind::Ready); }
    /// A release is known, from available to ready, and has notes.
    bool hasNotes() const { return m_notes.has_value(); }
    ADFNode notes() const { return m_notes.value_or(ADFNode()); }
    QString footnote() const;
    QString feedPrompt() const;
    /// Empty before the first successful check.
    QString lastCheck() const;
    QString whatsNewTitle() const;
    bool hasWhatsNewNotes() const { return m_whatsNewNotes.has_value(); }
    ADFNode whatsNewNotes() const { return m_whatsNewNotes.value_or(ADFNode()); }
    bool hasAlert() const { return m_alert.has_value(); }
    UpdateAlert alert() const { return m_alert.value_or(UpdateAlert()); }

    /// Looks for a release as the user has asked in the menu, without waiting for it. The result is in `alert`.
    void checkFromMenu();
    /// Does what the badge offers: downloads the available release, or installs the one that is ready.
    Q_INVOKABLE void pressBadge();
    /// Chooses the first button of the alert, which installs the release if the alert offers that.
    Q_INVOKABLE void acceptAlert();
    /// Closes the alert.
    Q_INVOKABLE void dismissAlert();
    /// Opens a link of release notes.
    Q_INVOKABLE void openLink(const QString &address);

Q_SIGNALS:
    void stateChanged();
    void notesChanged();
    void feedChanged();
    void lastCheckChanged();
    void whatsNewChanged();
    void alertChanged();
    /// There is an alert, which needs a window.
    void alertRaised();
    /// The user has chosen a link.
    void addressChosen(const QUrl &address);

private:
    QCoro::Task<> check();
    void followState();
    void followWhatsNew();

    Updater &m_updater;
    SystemCalendar &m_calendar;
    /// The notes of which `m_notes` is made. The document is kept while they stay the same, so that it keeps its place.
    QString m_notesText;
    std::optional<ADFNode> m_notes;
    std::optional<ADFNode> m_whatsNewNotes;
    std::optional<UpdateAlert> m_alert;
};
