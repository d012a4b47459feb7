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
}

TEST(Utf8StreamDecoder, StrictDecodingRejectsInvalidText)
{
    EXPECT_EQ(qf::decodeUtf8Strictly("caf\xC3\xA9"), QString::fromUtf8("caf\xC3\xA9"));
    EXPECT_FALSE(qf::decodeUtf8Strictly("caf\xC3").has_value());
    EXPECT_FALSE(qf::decodeUtf8Strictly("\xFF").has_value());
    EXPECT_EQ(qf::decodeUtf8Strictly(QByteArray()), QString());
    // A byte-order mark survives, so text written back has the same bytes.
    EXPECT_EQ(qf::decodeUtf8Strictly("\xEF\xBB\xBFx")->toUtf8(), QByteArray("\xEF\xBB\xBFx"));
}
