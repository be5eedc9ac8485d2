#pragma once

#include "model/ADFNode.h"
#include "screens/detail/OpenIssue.h"
#include "state/drafts/AbandonedTexts.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

#include <optional>

/// The description of an open issue: what is shown of it, and the Markdown text while it is edited. A record that arrives
/// during editing does not change the text. Another issue and the end of the session end the editing. A changed text that is
/// not saved is kept as the abandoned text of the issue, and so is one that the site refuses.
class DescriptionEditing : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(OpenIssue *issue READ issue WRITE setIssue NOTIFY issueChanged FINAL REQUIRED)
    Q_PROPERTY(Content content READ content NOTIFY documentChanged FINAL)
    Q_PROPERTY(ADFNode document READ document NOTIFY documentChanged FINAL)
    /// Saving a Markdown text simplifies the description, which contains more than Markdown can express.
    Q_PROPERTY(bool simplifies READ simplifies NOTIFY documentChanged FINAL)
    /// What a saved Markdown text would lose: "2 images, 1 tableau". Empty if nothing is lost, and while nothing is
    /// edited.
    Q_PROPERTY(QString losses READ losses NOTIFY lossesChanged FINAL)
    Q_PROPERTY(bool isEditing READ isEditing NOTIFY editingChanged FINAL)
    /// The text that is edited; empty otherwise. The editor writes it.
    Q_PROPERTY(QString draft READ draft WRITE setDraft NOTIFY draftChanged FINAL)
    /// There is an abandoned text, and the text has not been changed yet.
    Q_PROPERTY(bool canResume READ canResume NOTIFY canResumeChanged FINAL)

public:
    enum Content {
        /// The description.
        Document,
        /// The issue has none, as far as is known before it was fetched by itself.
        Loading,
        /// The issue has none.
        Missing
    };
    Q_ENUM(Content)

    using QObject::QObject;
    ~DescriptionEditing() override;

    OpenIssue *issue() const { return m_issue; }
    void setIssue(OpenIssue *issue);
    Content content() const;
    ADFNode document() const { return m_document.value_or(ADFNode()); }
    bool simplifies() const;
    const QString &losses() const { return m_losses; }
    bool isEditing() const { return m_isEditing; }
    const QString &draft() const { return m_draft; }
    void setDraft(const QString &draft);
    bool canResume() const;

    /// Begins with the Markdown form of the description. Has no effect during editing or while the issue is unknown.
    Q_INVOKABLE void begin();
    /// The editor shows the text, perhaps with other line breaks. Only what differs from this text was typed.
    Q_INVOKABLE void settle();
    /// Ends the editing, and makes its text the description.
    Q_INVOKABLE void save();
    /// Ends the editing without a change of the description.
    Q_INVOKABLE void cancel();
    /// Reports the abandoned text by `resumed`. Has no effect unless `canResume`.
    Q_INVOKABLE void resume();

Q_SIGNALS:
    void issueChanged();
    void documentChanged();
    void lossesChanged();
    void editingChanged();
    void draftChanged();
    void canResumeChanged();
    /// The editor must replace its text by this one.
    void resumed(const QString &text);

private:
    void follow();
    void followKey();
    void followSession();
    void show(const std::optional<ADFNode> &document, bool hasDetails);
    void updateLosses();
    void abandon();
    void setEditing(bool isEditing, const QString &draft);

    QPointer<OpenIssue> m_issue;
    QPointer<AppStore> m_store;
    /// The issue to which the description and the text belong.
    QString m_key;
    std::optional<ADFNode> m_document;
    bool m_hasDetails = false;
    bool m_isEditing = false;
    QString m_draft;
    /// The text with which the editing began.
    QString m_original;
    AbandonedPlace m_place;
    QString m_losses;
};
