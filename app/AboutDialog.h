#pragma once

#include <QDialog>

namespace qf {

class Platform;

// "About Quillforge": the logo, the version a person can report, the system it runs on, the
// web site, Quillforge's licence and those of what ships inside. Window-modal, like the removal
// sheets.
class AboutDialog : public QDialog {
    Q_OBJECT

public:
    AboutDialog(Platform& platform, QWidget* parent = nullptr);

    // The line "Copy Version Details" puts on the clipboard.
    QString versionDetails() const { return m_details; }

private:
    QString m_details;
};

} // namespace qf
