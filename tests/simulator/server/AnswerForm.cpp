#include "simulator/server/AnswerForm.h"

#include "simulator/server/Packed.h"

namespace {

constexpr qsizetype ChunkSize = 1000;

QByteArray inChunks(const QByteArray &bytes)
{
    QByteArray result;
    for (qsizetype at = 0; at < bytes.size(); at += ChunkSize) {
        const QByteArray chunk = bytes.mid(at, ChunkSize);
        result += QByteArray::number(chunk.size(), 16) + "\r\n" + chunk + "\r\n";
    }
    return result + "0\r\n\r\n";
}

bool isLengthLine(const QByteArray &line)
{
    return line.toLower().startsWith("content-length:");
}

} // namespace

RawAnswer inForm(const RawAnswer &answer, AnswerForm form, const RawRequest &request)
{
    const qsizetype end = answer.bytes.indexOf("\r\n\r\n");
    QByteArray body = answer.bytes.mid(end + 4);
    if (form == AnswerForm::Plain || end < 0 || body.isEmpty())
        return answer;
    QByteArrayList lines;
    for (const QByteArray &line : answer.bytes.first(end).split('\n')) {
        if (!isLengthLine(line))
            lines += line.trimmed();
    }
    const bool isPacked =
        form != AnswerForm::InChunks && request.header("Accept-Encoding").contains("gzip");
    if (isPacked) {
        body = packed(body);
        lines += "Content-Encoding: gzip";
    }
    if (form == AnswerForm::Packed) {
        lines += "Content-Length: " + QByteArray::number(body.size());
    } else {
        body = inChunks(body);
        lines += "Transfer-Encoding: chunked";
    }
    RawAnswer result = answer;
    result.bytes = lines.join("\r\n") + "\r\n\r\n" + body;
    return result;
}
