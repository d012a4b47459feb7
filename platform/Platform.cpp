#include "Platform.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QStorageInfo>
#include <QUrl>

namespace qf {

DiskSpace Platform::availableDiskSpace(const QString& path) const
{
    const QStorageInfo volume(path);
    if (!volume.isValid() || volume.bytesAvailable() < 0)
        return {std::nullopt, QStringLiteral("no volume information for ") + path};
    return {volume.bytesAvailable(), QString()};
}

bool Platform::revealFolder(const QString& path) { return QDesktopServices::openUrl(QUrl::fromLocalFile(path)); }

void Platform::revealFile(const QString& path, const RevealAnswer& answer)
{
    const bool shown = revealFolder(QFileInfo(path).absolutePath());
    if (answer)
        answer(shown);
}

void Platform::openURL(const QUrl& url) { QDesktopServices::openUrl(url); }

QStringList Platform::loginShellInvocation(const QString& line) const
{
    const QString shell = loginShell();
    const QString name = QFileInfo(shell).fileName();
    if (name.endsWith(QLatin1String("csh")))
        return {shell, QStringLiteral("-c"), line};
    // A terminal window's shell is interactive too, and reads what only interactive shells
    // read: ~/.zshrc, and ~/.bashrc past its usual "not interactive: stop here" line, where
    // version managers and conda put their search-path lines.
    if (name == QLatin1String("zsh") || name == QLatin1String("bash") || name == QLatin1String("fish"))
        return {shell, QStringLiteral("-l"), QStringLiteral("-i"), QStringLiteral("-c"), line};
    return {shell, QStringLiteral("-l"), QStringLiteral("-c"), line};
}

QStringList Platform::plainLoginShellInvocation(const QString& line) const
{
    const QString shell = loginShell();
    if (QFileInfo(shell).fileName().endsWith(QLatin1String("csh")))
        return {shell, QStringLiteral("-c"), line};
    return {shell, QStringLiteral("-l"), QStringLiteral("-c"), line};
}

} // namespace qf
