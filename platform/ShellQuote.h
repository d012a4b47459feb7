#pragma once

#include <QString>

namespace qf {

// Quotes a word for sh, bash and zsh when it needs quoting: plain words stay as they are,
// anything else goes between single quotes (a single quote inside becomes '\'').
QString shellQuote(const QString& word);

} // namespace qf
