#include "DeveloperFolder.h"

#include <QDir>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

namespace qf {

QString developerFolderPath() { return QDir::homePath() + QStringLiteral("/Developer"); }

bool developerFolderExists()
{
    const QFileInfo folder(developerFolderPath());
    return folder.exists() || folder.isSymLink();
}

FolderCreation makeDeveloperFolder()
{
    if (developerFolderExists())
        return {FolderCreation::alreadyThere, QString()};
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(developerFolderPath().toStdString()), error);
    if (error)
        return {FolderCreation::failed, QString::fromStdString(error.message())};
    return {FolderCreation::created, QString()};
}

} // namespace qf
