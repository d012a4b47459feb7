#include "TestSupport.h"

#include "Motion.h"
#include "Preferences.h"
#include "Theme.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QPalette>

#include <csignal>

#include <unistd.h>

namespace qf::test {

void writeFile(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << path.toStdString();
    file.write(content);
}

bool writeExecutable(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(content) != content.size())
        return false;
    file.close();
    return file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

void makeLink(const QString& target, const QString& link)
{
    QDir().mkpath(QFileInfo(link).absolutePath());
    ASSERT_EQ(::symlink(QFile::encodeName(target).constData(), QFile::encodeName(link).constData()), 0)
        << link.toStdString();
}

void settle()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    // A change deep in nested layouts climbs one layout per request: let it reach the top.
    for (int i = 0; i < 8; ++i)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

void inBothAppearances(const std::function<void()>& check)
{
    const QPalette saved = QApplication::palette();
    for (const bool dark : {false, true}) {
        SCOPED_TRACE(dark ? "dark" : "light");
        QApplication::setPalette(dark ? ui::Theme::darkPalette() : ui::Theme::lightPalette());
        settle();
        check();
    }
    QApplication::setPalette(saved);
}

AnimationsOn::AnimationsOn() { ui::motion::setEnabled(true); }
AnimationsOn::~AnimationsOn() { ui::motion::setEnabled(false); }

QString clearPreferences()
{
    static int counter = 0;
    QString path = QStringLiteral("%1/preferences-%2.ini").arg(qEnvironmentVariable("HOME")).arg(++counter);
    QFile::remove(path);
    Preferences::useFile(path);
    return path;
}

QList<QWidget*> focusableControls(const QWidget* root)
{
    QList<QWidget*> controls;
    for (QWidget* widget : root->findChildren<QWidget*>()) {
        if (widget->focusPolicy() & Qt::TabFocus)
            controls << widget;
    }
    return controls;
}

bool hasVisiblePixels(const QImage& image)
{
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < argb.height(); ++y) {
        const QRgb* line = reinterpret_cast<const QRgb*>(argb.constScanLine(y));
        for (int x = 0; x < argb.width(); ++x) {
            if (qAlpha(line[x]) > 0)
                return true;
        }
    }
    return false;
}

bool processEnded(long long pid)
{
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!stat.open(QIODevice::ReadOnly))
        return ::kill(pid_t(pid), 0) != 0;
    const QByteArray line = stat.readAll();
    return line.mid(line.lastIndexOf(')') + 2, 1) == "Z";
}

} // namespace qf::test
