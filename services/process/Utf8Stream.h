#pragma once

#include <QByteArray>
#include <QString>

namespace qf {

// Turns a byte stream into text chunk by chunk without losing anything: a character split
// between two reads is delivered whole with the next chunk, bytes that are not UTF-8 become
// U+FFFD instead of taking the rest of the chunk with them, and a byte-order mark is dropped
// only where it opens the stream.
class Utf8StreamDecoder {
public:
    // The text of every complete character received so far and not yet returned.
    QString feed(QByteArrayView bytes);
    // Whatever is left at the end of the stream (an unfinished character becomes U+FFFD).
    QString finish();

private:
    QByteArray m_pending;
    bool m_started = false;
};

// Everything decoded: bytes that are not UTF-8 become U+FFFD, the rest is kept, a byte-order
// mark included.
QString decodeUtf8Lossily(QByteArrayView bytes);

} // namespace qf
