#pragma once

#include "state/composing/CommentDraft.h"
#include "state/drafts/AbandonedTexts.h"

#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <memory>

/// What a comment composer shows and does: the draft for QML, and its sending. Its kinds say where users come from and
/// where comments go. A text belongs to one issue. If it was not sent when the issue or the composer goes, it is kept as the
/// abandoned text of that issue.
class Composition : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Only its kinds can be made")
    /// Whether comments can be hidden from customers: the project is a service project.
    Q_PROPERTY(bool allowsInternal READ allowsInternal WRITE setAllowsInternal NOTIFY changed FINAL)
    /// The choice between a reply and an internal note is shown.
    Q_PROPERTY(bool hasReaders READ hasReaders NOTIFY changed FINAL)
    Q_PROPERTY(bool isInternal READ isInternal WRITE setIsInternal NOTIFY changed FINAL)
    Q_PROPERTY(QString placeholder READ placeholder NOTIFY changed FINAL)
    /// The name and the hint of the send button, with its shortcut.
    Q_PROPERTY(QString sendTitle READ sendTitle NOTIFY changed FINAL)
    Q_PROPERTY(bool canSend READ canSend NOTIFY changed FINAL)
    Q_PROPERTY(bool isSending READ isSending NOTIFY changed FINAL)
    /// Users are suggested for the mention that is being typed.
    Q_PROPERTY(bool hasSuggestions READ hasSuggestions NOTIFY changed FINAL)
    /// There is an abandoned text, and nothing has been typed yet.
    Q_PROPERTY(bool canResume READ canResume NOTIFY changed FINAL)
    Q_PROPERTY(int highlighted READ highlighted WRITE setHighlighted NOTIFY changed FINAL)

public:
    explicit Composition(QObject *parent = nullptr);
    ~Composition() override;

    bool allowsInternal() const { return m_allowsInternal; }
    void setAllowsInternal(bool allows);
    bool hasReaders() const;
    bool isInternal() const;
    void setIsInternal(bool internal);
    QString placeholder() const;
    QString sendTitle() const;
    bool canSend() const;
    bool isSending() const;
    bool hasSuggestions() const { return !suggestions().isEmpty(); }
    QList<JiraUser> suggestions() const;
    bool canResume() const;
    int highlighted() const;
    void setHighlighted(int index);

    /// The editor has this text and this caret.
    Q_INVOKABLE void edit(const QString &text, int caret);
    Q_INVOKABLE void beginMention();
    /// Hides the suggestions until the words change.
    Q_INVOKABLE void dismiss();
    void pick(int index);
    /// Returns false if the key has its usual effect.
    bool take(CommentDraft::Key key);
    Q_INVOKABLE void send();
    /// Goes on with the abandoned text, with its mentions and its readers. Has no effect unless `canResume`.
    Q_INVOKABLE void resume();
    /// Uploads files to the issue at once, and then adds links to them to the text.
    Q_INVOKABLE void attach(const QList<QUrl> &files);

Q_SIGNALS:
    void changed();
    /// The editor must replace the characters from `start` up to `end`, and then have this caret.
    void replaced(int start, int end, const QString &words, int caret);
    /// Another issue: the editor must be empty.
    void restarted();
    /// Files were linked in the text, which should have the focus again.
    void linked();

protected:
    virtual Clock &clock() = 0;
    /// The users known here who can be mentioned, the nearest first.
    virtual QList<JiraUser> candidates() const = 0;
    virtual QCoro::Task<QList<JiraUser>> search(QString words, std::stop_token stop) = 0;
    /// Returns whether the comment was posted. Reports both outcomes to the user.
    virtual QCoro::Task<bool> post(OutgoingComment comment) = 0;
    /// Returns the stored files. Reports a failure to the user.
    virtual QCoro::Task<QList<Attachment>> upload(QList<QUrl> files) = 0;

    /// Begins an empty draft, for another issue, whose abandoned text has this place. Nothing that is under way for the
    /// previous issue changes it.
    void restart(const AbandonedPlace &place = {});
    /// The candidates may have changed.
    void refresh();
    /// Whether `restart` was called: before that there is no issue to write on.
    bool hasDraft() const { return m_draft != nullptr; }

private:
    void abandon();
    QCoro::Task<> sendNow(OutgoingComment comment);
    QCoro::Task<> attachNow(QList<QUrl> files);

    std::unique_ptr<CommentDraft> m_draft;
    AbandonedPlace m_place;
    bool m_allowsInternal = false;
};
