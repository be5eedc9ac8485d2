#pragma once

#include "state/AppStore.h"
#include "state/drafts/AbandonedText.h"

#include <QObject>
#include <QPointer>

#include <map>
#include <optional>
#include <utility>

class AbandonedPlace;

/// The last abandoned text of each editor of a store, for all its windows. The texts are in memory only, and are
/// forgotten when the session ends, because the next one may be that of another account. UI thread only.
class AbandonedTexts : public QObject
{
    Q_OBJECT

public:
    enum class Kind { Description, Comment, NewIssue };

    /// The texts of a store, which owns them.
    static AbandonedTexts &of(AppStore &store);

    /// The place of one editor in the present session. A new issue has no key.
    AbandonedPlace place(Kind kind, const QString &issueKey = {});

Q_SIGNALS:
    /// Some place has another text, or none any more.
    void changed();
    /// All texts were forgotten. Editors must drop what is being typed, and ask for new places.
    void sessionEnded();

private:
    friend class AbandonedPlace;
    using Address = std::pair<Kind, QString>;

    explicit AbandonedTexts(AppStore &store);
    void endSession();
    void set(const Address &address, const std::optional<AbandonedText> &text);

    std::map<Address, AbandonedText> m_texts;
    /// Grows with each session.
    quint64 m_session = 0;
};

/// Where the abandoned text of one editor is kept. It has no effect after the session in which it was made, so that a
/// late answer keeps nothing for the next session. A place that was default-constructed never has an effect.
class AbandonedPlace
{
public:
    AbandonedPlace() = default;

    std::optional<AbandonedText> text() const;
    /// Keeps a text instead of the one before. A text without words is not kept.
    void keep(const AbandonedText &text);
    /// Keeps a text that was typed before the one that is there. They become one text, which is for agents only if one of
    /// them was.
    void keepBefore(const AbandonedText &text);
    void forget();
    /// Forgets the text if it is still this one, because it was sent after all.
    void forget(const AbandonedText &text);

private:
    friend class AbandonedTexts;

    bool isValid() const { return m_texts && m_texts->m_session == m_session; }

    QPointer<AbandonedTexts> m_texts;
    quint64 m_session = 0;
    AbandonedTexts::Address m_address;
};
