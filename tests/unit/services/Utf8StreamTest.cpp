#include "Utf8Stream.h"

#include <QStringList>

#include <gtest/gtest.h>

using qf::Utf8StreamDecoder;

TEST(Utf8StreamDecoder, CharactersSplitAcrossReadsArriveWhole)
{
    // One-, two-, three- and four-byte characters.
    const QString original = QString::fromUtf8("a\xC3\xA9\xE2\x86\x92\xF0\x9F\x9A\x80z");
    const QByteArray bytes = original.toUtf8();
    for (qsizetype cut = 0; cut <= bytes.size(); ++cut) {
        for (qsizetype second = cut; second <= bytes.size(); ++second) {
            Utf8StreamDecoder decoder;
            QStringList chunks;
            chunks << decoder.feed(bytes.left(cut)) << decoder.feed(bytes.mid(cut, second - cut))
                   << decoder.feed(bytes.mid(second)) << decoder.finish();
            EXPECT_EQ(chunks.join(QString()), original) << "cuts at " << cut << " and " << second;
            for (const QString& chunk : chunks)
                EXPECT_FALSE(chunk.contains(QChar::ReplacementCharacter)) << "cuts at " << cut << " and " << second;
        }
    }
}

TEST(Utf8StreamDecoder, InvalidBytesBecomeReplacementCharactersAndLoseNothingElse)
{
    Utf8StreamDecoder decoder;
    EXPECT_EQ(decoder.feed("ab\xFF"
                           "cd\n"),
              QStringLiteral("ab\uFFFDcd\n"));
    EXPECT_EQ(decoder.feed("ok"), QStringLiteral("ok"));
    // A character that never completes is shown as one replacement at the end.
    EXPECT_EQ(decoder.feed("x\xE2\x86"), QStringLiteral("x"));
    EXPECT_EQ(decoder.finish(), QStringLiteral("\uFFFD"));
    EXPECT_TRUE(decoder.finish().isEmpty());

    // Decoding lossily at once keeps everything it can too.
    EXPECT_EQ(qf::decodeUtf8Lossily("caf\xC3\xA9 \xFF ok"), QStringLiteral("caf\u00E9 \uFFFD ok"));
    EXPECT_EQ(qf::decodeUtf8Lossily("\xEF\xBB\xBFx"), QStringLiteral("\uFEFFx"));
    EXPECT_EQ(qf::decodeUtf8Lossily(QByteArray()), QString());
}

TEST(Utf8StreamDecoder, OnlyTheMarkThatOpensTheStreamIsDropped)
{
    const QByteArray mark = "\xEF\xBB\xBF";
    Utf8StreamDecoder decoder;
    QString text = decoder.feed(mark.left(2)); // even split across the first reads
    text += decoder.feed(QByteArray(mark.mid(2) + "a"));
    text += decoder.feed(QByteArray(mark + "b" + mark)); // a read that begins with one
    text += decoder.feed(mark.left(1));
    text += decoder.feed(mark.mid(1));
    text += decoder.finish();
    EXPECT_EQ(text, QStringLiteral("a\uFEFFb\uFEFF\uFEFF"));
}
