#include "screens/kit/texts/DocumentEdits.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

QString DocumentEdits::textOf(const QQuickTextDocument *document) const
{
    QString text = document->textDocument()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
    return text;
}

void DocumentEdits::replace(const QQuickTextDocument *document, int start, int end,
                            const QString &text) const
{
    auto *content = document->textDocument();
    const int last = content->characterCount() - 1;
    QTextCursor cursor(content);
    cursor.setPosition(std::clamp(start, 0, last));
    cursor.setPosition(std::clamp(end, 0, last), QTextCursor::KeepAnchor);
    cursor.insertText(text);
}

void DocumentEdits::joinLines(const QQuickTextDocument *document) const
{
    auto *content = document->textDocument();
    if (content->blockCount() < 2)
        return;
    QTextCursor cursor(content);
    cursor.joinPreviousEditBlock();
    while (content->blockCount() > 1) {
        cursor.setPosition(content->firstBlock().length() - 1);
        cursor.deleteChar();
        cursor.insertText(QString(u' '));
    }
    cursor.endEditBlock();
}
