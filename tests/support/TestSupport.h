#pragma once

#include <QApplication>
#include <QImage>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>

namespace qf::test {

// Finds a descendant by object name, failing the test when there is none.
template <typename T = QWidget>
T* child(const QObject* root, const QString& name)
{
    T* found = root->findChild<T*>(name);
    EXPECT_NE(found, nullptr) << "no child named " << name.toStdString();
    return found;
}

// Writes `content` to `path`, making its folders first; fails the test when it cannot.
void writeFile(const QString& path, const QByteArray& content);
// The same for a program only its owner may change; false when it could not be written.
bool writeExecutable(const QString& path, const QByteArray& content);
// Makes a symbolic link at `link` to `target` (as written), making its folder first.
void makeLink(const QString& target, const QString& link);

// Runs posted events, including deferred deletions.
void settle();

// Runs `check` in the light appearance, then in the dark one (each named in the failures),
// and puts the palette back.
void inBothAppearances(const std::function<void()>& check);

// Turns animations on for one test and off again afterwards.
class AnimationsOn {
public:
    AnimationsOn();
    ~AnimationsOn();
};

// Points the preferences at a new, empty file inside the test's home and returns its path.
QString clearPreferences();

// Every widget under `root` that takes keyboard focus (a control a person can use).
QList<QWidget*> focusableControls(const QWidget* root);

// True when some pixel of `image` is not fully transparent.
bool hasVisiblePixels(const QImage& image);

// Whether the process `pid` is gone, or only a zombie waiting for whoever adopted it.
bool processEnded(long long pid);

} // namespace qf::test
