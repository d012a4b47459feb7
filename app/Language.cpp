#include "Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace qf::language {

const QStringList& available()
{
    static const QStringList languages{QStringLiteral("de"),    QStringLiteral("fr"), QStringLiteral("es"),
                                       QStringLiteral("pt_BR"), QStringLiteral("ja"), QStringLiteral("zh_CN")};
    return languages;
}

namespace {

// The catalogue for one preferred language: the exact one for Portuguese and Chinese (Brazil's
// and the simplified script), the language alone for the others.
std::optional<QString> catalogueFor(const QString& preferred)
{
    const QLocale locale(preferred);
    switch (locale.language()) {
    case QLocale::German: return QStringLiteral("de");
    case QLocale::French: return QStringLiteral("fr");
    case QLocale::Spanish: return QStringLiteral("es");
    case QLocale::Japanese: return QStringLiteral("ja");
    // Portugal's Portuguese reads Brazil's more easily than English.
    case QLocale::Portuguese: return QStringLiteral("pt_BR");
    case QLocale::Chinese:
        if (locale.script() == QLocale::SimplifiedHanScript)
            return QStringLiteral("zh_CN");
        return std::nullopt; // traditional characters: Taiwan, Hong Kong, Macao
    default: return std::nullopt;
    }
}

} // namespace

std::optional<QString> choose(const QStringList& preferred)
{
    for (const QString& language : preferred) {
        const QLocale locale(language);
        if (locale.language() == QLocale::English || locale.language() == QLocale::C)
            return std::nullopt;
        if (const std::optional<QString> catalogue = catalogueFor(language))
            return catalogue;
    }
    return std::nullopt;
}

std::optional<QString> install(QCoreApplication& application)
{
    std::optional<QString> chosen = choose(QLocale::system().uiLanguages());
    if (!chosen)
        return std::nullopt;
    auto* own = new QTranslator(&application);
    if (!own->load(QStringLiteral(":/i18n/quillforge_") + *chosen)) {
        delete own;
        return std::nullopt;
    }
    QCoreApplication::installTranslator(own);
    // Qt's own texts, where the system has them; without, they stay English.
    auto* qt = new QTranslator(&application);
    if (qt->load(QStringLiteral("qtbase_") + *chosen, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qt);
    else
        delete qt;
    return chosen;
}

} // namespace qf::language
