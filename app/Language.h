#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class QCoreApplication;

namespace qf::language {

// The languages Quillforge speaks besides English, as its catalogues name them: "de", "fr",
// "es", "pt_BR", "ja", "zh_CN".
const QStringList& available();

// The first of `preferred` (the user's languages in order, as QLocale::uiLanguages() gives them:
// "de-DE", "pt-BR", "zh-Hans-CN") that Quillforge speaks, as its catalogue names it; nothing when
// English comes first or none of them is spoken.
std::optional<QString> choose(const QStringList& preferred);

// Speaks the system's language where Quillforge has it: its own catalogue and Qt's (the texts of
// standard buttons and menus), where the system has Qt's. Returns the language chosen.
std::optional<QString> install(QCoreApplication& application);

} // namespace qf::language
