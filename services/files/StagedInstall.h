#pragma once

#include "Errors.h"

#include <QString>
#include <QStringList>

namespace qf {

// Installing a tree of files into a folder that is already in use (~/.local): the tree is
// first filled in a hidden staging folder inside the destination, so on the same volume, and
// moved into place only once it is complete. A failure at any point leaves the destination as
// it was. Everything here works on the files directly and may take a while: call it from a
// worker thread.
namespace stagedInstall {

struct Staging {
    QString folder;          // the folder to fill
    QStringList madeFolders; // the folders made to hold it, outermost first
};

// Makes `destination` when it is missing (through a link to a folder that does not exist yet,
// that folder) and an empty hidden staging folder inside it.
Result<Staging> begin(const QString& destination);

// Moves the complete tree in `staging` into `destination`. A folder that is already there is
// filled entry by entry, also when it is a link (to another volume, too): a link the user made
// stays as it is, and one whose folder does not exist yet gets that folder. Everything else is
// moved in whole; an entry it replaces is set aside and only dropped once all is in place.
// `last` (paths inside the tree, such as "bin/node") go in after everything else, in that
// order. Afterwards the staging folder is gone; on failure everything moved in is taken out
// again, everything replaced is back, and the folders `begin` made are gone too.
Result<void> complete(const Staging& staging, const QString& destination, const QStringList& last);

// Removes the staging folder and the folders `begin` made: nothing is installed.
void abandon(const Staging& staging);

// What a copy of Quillforge stopped half-way (killed, crashed, the computer switched off)
// leaves behind: staging folders and folders of replaced entries in `destination` (searched
// three folders deep, links never followed), and downloads and the private folders of
// commands in `temporary`. Removes those whose names are ours, that belong to this user and
// that were last changed before `before` (seconds since the epoch), so that nothing of a run
// under way goes. Only a copy that holds the one-window lock calls it. Returns what it removed.
QStringList removeLeftovers(const QString& destination, const QString& temporary, qint64 before);

} // namespace stagedInstall

} // namespace qf
