#pragma once

#include <QString>

namespace qf {

// ~/Developer, the folder where the user's projects live and where the tools start.
QString developerFolderPath();

// Whether anything is at that path: a folder, an ordinary file, or a link (even a broken one).
bool developerFolderExists();

struct [[nodiscard]] FolderCreation {
    enum Outcome { created, alreadyThere, failed };
    Outcome outcome = failed;
    QString error; // why it could not be created
};

// Creates the folder, with any missing parents, unless something is already there.
FolderCreation makeDeveloperFolder();

} // namespace qf
