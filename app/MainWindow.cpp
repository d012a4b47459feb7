#include "MainWindow.h"

#include "InstallationState.h"
#include "Services.h"
#include "Theme.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

namespace qf {

MainWindow::MainWindow(InstallationState& state, Services& services, ScreenFactory factory, QWidget* parent)
    : QWidget(parent), m_services(services), m_installation(state, services.installer)
{
    setObjectName(QStringLiteral("mainWindow"));
    setWindowTitle(QStringLiteral("Quillforge"));
    setMinimumSize(minimumWidth, minimumHeight);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Window);

    // Start at the size the window will open with, so the first screen is laid out once.
    if (QScreen* screen = QGuiApplication::primaryScreen())
        resize(screen->availableGeometry().size().expandedTo(minimumSize()));

    if (!factory) {
        factory = [this](InstallationStep step, InstallationState& shared) {
            return makeScreen(step, shared, m_services, m_installation);
        };
    }
    m_content = new ContentView(state, std::move(factory), this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_content);
}

void MainWindow::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!m_configured) {
        m_configured = true;
        // Runs once the window exists on screen.
        QTimer::singleShot(0, this, &MainWindow::configure);
    }
}

void MainWindow::configure()
{
    QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;
    // Fill the usable area of the screen, whatever size the window was created with; the
    // window manager's frame, where there is one, stays inside that area too.
    const QRect available = screen->availableGeometry();
    const QMargins frame(geometry().left() - frameGeometry().left(), geometry().top() - frameGeometry().top(),
                         frameGeometry().right() - geometry().right(), frameGeometry().bottom() - geometry().bottom());
    setGeometry(available.marginsRemoved(frame));
    m_services.platform.configureMainWindow(this);
}

} // namespace qf
