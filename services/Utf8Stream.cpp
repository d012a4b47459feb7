#include "Utf8Stream.h"

#include <QStringDecoder>

namespace qf {

namespace {

// Length of the sequence a lead byte announces; 0 for continuation and invalid bytes.
int sequenceLength(unsigned char lead)
{
    if (lead < 0x80)
        return 1;
    if ((lead & 0xE0) == 0xC0)
        return 2;
    if ((lead & 0xF0) == 0xE0)
        return 3;
    if ((lead & 0xF8) == 0xF0)
        return 4;
    return 0;
}

// How many bytes at the end of `bytes` start a character that has not fully arrived yet.
qsizetype incompleteTail(QByteArrayView bytes)
{
    const qsizetype size = bytes.size();
    // A character is at most four bytes: look at the last three for an unfinished one.
    for (qsizetype back = 1; back <= 3 && back <= size; ++back) {
        const auto byte = static_cast<unsigned char>(bytes[size - back]);
        if ((byte & 0xC0) == 0x80)
            continue; // a continuation byte: keep looking for its lead
        const int length = sequenceLength(byte);
        return length > back ? back : 0;
    }
    return 0;
}

} // namespace

QString Utf8StreamDecoder::feed(QByteArrayView bytes)
{
    if (m_pending.isEmpty()) {
        // The usual case: decode straight from the chunk, keep only an unfinished tail.
        const qsizetype keep = incompleteTail(bytes);
        m_pending = bytes.last(keep).toByteArray();
        return QString::fromUtf8(bytes.first(bytes.size() - keep));
    }
    m_pending.append(bytes);
    const qsizetype keep = incompleteTail(m_pending);
    const qsizetype ready = m_pending.size() - keep;
    if (ready == 0)
        return {};
    QString text = QString::fromUtf8(m_pending.constData(), ready);
    m_pending.remove(0, ready);
    return text;
}

QString Utf8StreamDecoder::finish()
{
    // What is left is always the start of one character that never completed.
    const bool unfinished = !m_pending.isEmpty();
    m_pending.clear();
    return unfinished ? QString(QChar::ReplacementCharacter) : QString();
}

std::optional<QString> decodeUtf8Strictly(const QByteArray& bytes)
{
    // A byte-order mark is kept as text, so that writing the text back gives the same bytes.
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    QString text = decoder(bytes);
    if (decoder.hasError())
        return std::nullopt;
    return text;
}

} // namespace qf
