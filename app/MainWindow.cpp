#include "MainWindow.h"

#include "AboutDialog.h"
#include "FocusRing.h"
#include "HomeView.h"
#include "InstallationState.h"
#include "Services.h"
#include "Theme.h"
#include "WindowChrome.h"

#include <QAction>
#include <QGuiApplication>
#include <QMenuBar>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include <utility>

namespace qf {

MainWindow::MainWindow(InstallationState& state, Services& services, ScreenFactory factory, QWidget* parent,
                       ContentView::FirstScreen firstScreen)
    : QWidget(parent), m_services(services), m_installation(state, services.installer, services.logs)
{
    setObjectName(QStringLiteral("mainWindow"));
    setWindowTitle(QStringLiteral("Quillforge"));
    setMinimumSize(minimumWidth, minimumHeight);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Window);
    ui::FocusRing::attach(this);

    // Start at the size the window will open with, so the first screen is laid out once.
    if (QScreen* screen = QGuiApplication::primaryScreen()) {
        const QMargins frame = ui::mainWindowFrame(this, services.platform).margins;
        resize(screen->availableGeometry().marginsRemoved(frame).size().expandedTo(minimumSize()));
    }

    if (!factory) {
        factory = [this](InstallationStep step, InstallationState& shared) {
            QWidget* screen = makeScreen(step, shared, m_services, m_installation);
            if (auto* home = qobject_cast<HomeView*>(screen))
                connect(home, &HomeView::aboutRequested, this, &MainWindow::showAbout);
            return screen;
        };
    }
    if (services.platform.hasApplicationMenu()) {
        // The system's application menu holds "About Quillforge"; the bar itself is never
        // drawn in the window.
        auto* menuBar = new QMenuBar(nullptr);
        auto* about = new QAction(tr("About Quillforge"), menuBar);
        about->setMenuRole(QAction::AboutRole);
        connect(about, &QAction::triggered, this, &MainWindow::showAbout);
        menuBar->addMenu(tr("Help"))->addAction(about);
        connect(this, &QObject::destroyed, menuBar, &QObject::deleteLater);
    }
    m_content = new ContentView(state, std::move(factory), this, firstScreen);
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

void MainWindow::bringToFront()
{
    if (isMinimized())
        setWindowState((windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
    show();
    raise();
    activateWindow();
}

void MainWindow::showAbout()
{
    if (!m_about) {
        m_about = new AboutDialog(m_services.platform, this);
        m_about->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_about->open();
    m_about->raise();
    m_about->activateWindow();
}

bool MainWindow::event(QEvent* event)
{
    const bool handled = QWidget::event(event);
    // A window manager frames a new window a moment after it appears: once it has, a frame
    // that turned out other than assumed is made room for, once.
    const QEvent::Type type = event->type();
    if (m_assumedFrame && (type == QEvent::Move || type == QEvent::Resize || type == QEvent::WindowActivate)) {
        const WindowFrame frame = ui::mainWindowFrame(this, m_services.platform);
        if (frame.reported && std::exchange(m_assumedFrame, std::nullopt) != frame.margins)
            fitToScreen();
    }
    return handled;
}

void MainWindow::configure()
{
    fitToScreen();
    ui::shapeMainWindow(this, m_services.platform);
}

void MainWindow::fitToScreen()
{
    QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;
    // Whatever size the window was created with, the window and its frame together cover
    // the usable area of the screen.
    const WindowFrame frame = ui::mainWindowFrame(this, m_services.platform);
    setGeometry(screen->availableGeometry().marginsRemoved(frame.margins));
    m_assumedFrame = frame.reported ? std::nullopt : std::optional(frame.margins);
}

} // namespace qf
