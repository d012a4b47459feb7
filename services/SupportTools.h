#pragma once

#include "Platform.h"
#include "ShellRunner.h"
#include "SystemTool.h"

#include <QCoreApplication>
#include <QCoro/QCoroTask>
#include <QList>
#include <QString>

#include <optional>

namespace qf {

// Where the Node.js that commands find came from.
enum class NodeCopy {
    homebrew,     // Homebrew's
    localRelease, // the release archive unpacked into ~/.local
    other,        // anything else (a system package, nvm, an installer): not Quillforge's to remove
};

// The line that removes that copy; nothing for a copy Quillforge did not install.
std::optional<QString> nodeRemovalCommand(NodeCopy copy);

// The items in dashboard order, numbered from 1, with the projects folder's presence already
// known: the developer tools, the projects folder, Homebrew (where it belongs to the setup)
// and Node.js.
QList<SystemTool> systemToolCatalogue(const Platform& platform);

// The supporting items of the setup: finds out which are there, with their versions and how
// each would go away, and removes one by its own line.
class SupportTools {
    Q_DECLARE_TR_FUNCTIONS(SupportTools)

public:
    SupportTools(ShellRunner& shell, const Platform& platform);
    SupportTools(const SupportTools&) = delete;
    SupportTools& operator=(const SupportTools&) = delete;

    QList<SystemTool> catalogue() const { return systemToolCatalogue(m_platform); }

    // Fills in presence and version of one item, or of every item of the catalogue (all
    // checked at the same time, results in catalogue order). A check that fails leaves its
    // item missing; nothing is reported.
    QCoro::Task<SystemTool> detect(SystemTool tool);
    QCoro::Task<QList<SystemTool>> detectAll();

    // Which copy the node at `path` is (Homebrew's when it is in Homebrew's own bin folder).
    QCoro::Task<NodeCopy> nodeCopyAt(QString path);

    // Runs the item's removal line, handing `onOutput` the line as the log shows it and then
    // everything it prints as it comes. Homebrew counts as removed only once a search no
    // longer finds it. A cancelled password dialog gives an error that says it was declined
    // (`ServiceError::isDeclined`); an item without a line cannot be removed from here.
    QCoro::Task<Result<void>> remove(SystemTool tool, ShellRunner::OutputHandler onOutput);

private:
    ShellRunner& m_shell;
    const Platform& m_platform;
};

} // namespace qf
