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
    QString text;
    if (m_pending.isEmpty()) {
        // The usual case: decode straight from the chunk, keep only an unfinished tail.
        const qsizetype keep = incompleteTail(bytes);
        m_pending = bytes.last(keep).toByteArray();
        text = decodeUtf8Lossily(bytes.first(bytes.size() - keep));
    } else {
        m_pending.append(bytes);
        const qsizetype keep = incompleteTail(m_pending);
        const qsizetype ready = m_pending.size() - keep;
        text = decodeUtf8Lossily(QByteArrayView(m_pending).first(ready));
        m_pending.remove(0, ready);
    }
    // Only a byte-order mark that opens the whole stream is a mark; later ones are text.
    if (!m_started && !text.isEmpty()) {
        m_started = true;
        if (text.front() == QChar::ByteOrderMark)
            text.remove(0, 1);
    }
    return text;
}

QString Utf8StreamDecoder::finish()
{
    // What is left is always the start of one character that never completed.
    const bool unfinished = !m_pending.isEmpty();
    m_pending.clear();
    return unfinished ? QString(QChar::ReplacementCharacter) : QString();
}

QString decodeUtf8Lossily(QByteArrayView bytes)
{
    // A byte-order mark is kept as text (Qt's own decoding would drop it from the start).
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    return decoder(bytes);
}

} // namespace qf
