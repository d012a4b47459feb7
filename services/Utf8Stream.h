#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace qf {

// Turns a byte stream into text chunk by chunk without losing anything: a character split
// between two reads is delivered whole with the next chunk, and bytes that are not UTF-8
// become U+FFFD instead of taking the rest of the chunk with them.
class Utf8StreamDecoder {
public:
    // The text of every complete character received so far and not yet returned.
    QString feed(QByteArrayView bytes);
    // Whatever is left at the end of the stream (an unfinished character becomes U+FFFD).
    QString finish();

private:
    QByteArray m_pending;
};

// Strict decoding: text when `bytes` are valid UTF-8, nothing otherwise.
std::optional<QString> decodeUtf8Strictly(const QByteArray& bytes);

} // namespace qf
