#pragma once

#include <QString>

namespace qf {

enum class Quoting {
    whenNeeded, // plain words stay as they are
    always,     // every word goes between single quotes
};

// Quotes a word for sh, bash and zsh so that the shell reads it back exactly as it is and
// runs nothing in it: between single quotes, a single quote inside becoming '\''.
QString shellQuote(const QString& word, Quoting quoting = Quoting::whenNeeded);

} // namespace qf
