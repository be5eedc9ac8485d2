#pragma once

#include "platform/Clock.h"
#include "state/AppStore.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Ends the program without losing what the user has changed: it waits for the writes that are not answered yet. Where
/// that takes long or a write is refused, the main window says so, and the user decides. UI thread only.
class Farewell : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the composition root")
    Q_PROPERTY(bool isShown READ isShown NOTIFY changed FINAL)
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(QString text READ text NOTIFY changed FINAL)

public:
    /// Who ends the program: the user, who can be asked, or the system, which does not wait for long.
    enum class Reason { User, System };

    /// Both outlive this object.
    Farewell(Clock &clock, AppStore &store);

    /// Ends the program as soon as no write is under way. Does nothing while it is ending already.
    void begin(Reason reason);
    /// Ends it at once.
    Q_INVOKABLE void leave();
    /// Goes on with the program.
    Q_INVOKABLE void stay();

    bool isShown() const { return m_stage != Stage::Idle && m_stage != Stage::Waiting; }
    QString title() const;
    QString text() const;

Q_SIGNALS:
    void changed();
    /// There is something to read in the main window.
    void windowWanted();
    /// The program can end.
    void ended();

private:
    enum class Stage {
        /// The program is not ending.
        Idle,
        /// The writes have a moment to end unseen.
        Waiting,
        /// The user is told of the writes that are under way.
        Sending,
        /// The site has not answered in time.
        Overdue,
        /// The site has refused a write.
        Refused
    };

    void setStage(Stage stage);
    void endIfNothingIsLeft();
    void noteRefusal(const QString &reason);

    Clock &m_clock;
    AppStore &m_store;
    Stage m_stage = Stage::Idle;
    Reason m_reason = Reason::User;
    QString m_refusal;
    Clock::TimerHandle m_shownTimer;
    Clock::TimerHandle m_overdueTimer;
    Clock::TimerHandle m_endTimer;
};
