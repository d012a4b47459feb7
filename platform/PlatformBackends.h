#pragma once

#include "Platform.h"

namespace qf {

// The backend for the system this binary was built for.
Platform& nativePlatform();

class LinuxPlatform : public Platform {
public:
    QString name() const override;
    void configureMainWindow(QWidget* window) override;
};

class MacPlatform : public Platform {
public:
    QString name() const override;
    void configureMainWindow(QWidget* window) override;
};

} // namespace qf
