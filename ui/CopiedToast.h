#pragma once

#include "Motion.h"
#include "RoundedCard.h"

#include <QObject>
#include <QTimer>

namespace qf::ui {

// The confirmation pill a screen shows after a copy.
class CopiedToast : public RoundedCard {
    Q_OBJECT

public:
    explicit CopiedToast(QWidget* parent = nullptr);
};

// Shows the copied toast over `host`, centred `bottomPadding` points above its bottom edge: it
// slides up and fades in with the spring, and 1.5 s after it appeared slides down and fades
// out. A copy while it shows changes nothing: it still leaves 1.5 s after it first appeared.
class CopiedToastPresenter : public QObject {
    Q_OBJECT

public:
    CopiedToastPresenter(QWidget* host, int bottomPadding);

    // Shows the toast for `visibleMs`; while it shows, another copy changes nothing.
    void present();
    bool isShowing() const { return m_showing; }
    CopiedToast* toast() const { return m_toast; }
    // Runs while the toast shows and hides it when it fires.
    const QTimer& hideTimer() const { return m_hide; }

    static constexpr int visibleMs = 1500;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void place();
    void apply(qreal shown);

    QWidget* m_host;
    int m_bottomPadding;
    CopiedToast* m_toast;
    bool m_showing = false;
    QTimer m_hide;
    motion::Transition m_presence;
};

} // namespace qf::ui
