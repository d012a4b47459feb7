#include "InstallationState.h"
#include "Language.h"
#include "OnboardingView.h"

#include <QCoreApplication>
#include <QLabel>
#include <QTranslator>

#include <gtest/gtest.h>

#include <optional>

using qf::language::choose;

TEST(Language, TheFirstPreferredLanguageQuillforgeSpeaksChooses)
{
    const struct {
        QStringList preferred;
        std::optional<QString> chosen;
    } cases[] = {
        {{QStringLiteral("de-DE"), QStringLiteral("en-US")}, QStringLiteral("de")},
        // English first is English, whatever follows.
        {{QStringLiteral("en-GB"), QStringLiteral("de-DE")}, std::nullopt},
        {{QStringLiteral("it-IT"), QStringLiteral("fr-CA"), QStringLiteral("en")}, QStringLiteral("fr")},
        {{QStringLiteral("es-419")}, QStringLiteral("es")},
        {{QStringLiteral("pt-BR")}, QStringLiteral("pt_BR")},
        {{QStringLiteral("pt-PT")}, QStringLiteral("pt_BR")},
        {{QStringLiteral("zh-Hans-CN")}, QStringLiteral("zh_CN")},
        {{QStringLiteral("zh-CN")}, QStringLiteral("zh_CN")},
        // Traditional characters are not the simplified catalogue's.
        {{QStringLiteral("zh-Hant-TW"), QStringLiteral("ja-JP")}, QStringLiteral("ja")},
        {{QStringLiteral("ko-KR")}, std::nullopt},
        {{QStringLiteral("C")}, std::nullopt},
        {{}, std::nullopt},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.preferred.join(QLatin1Char(' ')).toStdString());
        const std::optional<QString> chosen = choose(c.preferred);
        EXPECT_EQ(chosen, c.chosen);
        if (chosen) {
            EXPECT_TRUE(qf::language::available().contains(*chosen));
        }
    }
}

// Every catalogue the program carries reaches the screens: the introduction shows its
// catalogue's title, not the English one.
TEST(Language, EachCatalogueTranslatesTheScreens)
{
    const QString english = QStringLiteral("Welcome to Quillforge");
    for (const QString& language : qf::language::available()) {
        SCOPED_TRACE(language.toStdString());
        QTranslator catalogue;
        ASSERT_TRUE(catalogue.load(QStringLiteral(QF_CATALOGUE_DIR "/quillforge_") + language));
        QCoreApplication::installTranslator(&catalogue);
        const QString title = QCoreApplication::translate("qf::OnboardingView", "Welcome to Quillforge");
        qf::InstallationState state;
        qf::OnboardingView view(state);
        QStringList shown;
        for (const QLabel* label : view.findChildren<QLabel*>())
            shown << label->text();
        QCoreApplication::removeTranslator(&catalogue);
        EXPECT_NE(title, english);
        EXPECT_TRUE(shown.contains(title)) << shown.join(QLatin1Char('|')).toStdString();
        EXPECT_FALSE(shown.contains(english));
    }
}
