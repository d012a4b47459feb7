#pragma once

#include <QLineEdit>

namespace qf::ui {

// A one-line text field with a rounded border, drawn the same on every platform: the text
// background inside a hairline edge, and the window's focus ring while it has the focus. A secure
// field masks what it holds and keeps it out of the clipboard, the input method's memory and
// the accessibility tree; switching between secure and clear keeps the text.
class TextField : public QLineEdit {
    Q_OBJECT

public:
    explicit TextField(const QString& placeholder, QWidget* parent = nullptr);

    void setSecure(bool secure);
    bool isSecure() const { return echoMode() == QLineEdit::Password; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void applyColours();
};

} // namespace qf::ui
