// Installation log benchmark: what the installation screen costs while a chatty install pours
// its log into it, next to a bare read-only QPlainTextEdit fed the same way.
//
//   qf_install_log_bench [lines] [runs]     (defaults: 100000 and 3)
//
// The log is `lines` lines of about 80 characters (8 MB for 100,000), cut into 4 KB chunks
// that arrive one per turn of the event loop, as a streamed command's reads do. The screen
// gets them through the installation controller (state, signals, the log view on screen with
// "Details" open, and the whole log written to a file in a temporary folder, as the app keeps
// it); the bare widget gets them appended at its end and keeps all of it. Both windows are
// shown offscreen at 900 x 700. Measured per run: the total time until the last chunk is on
// screen, and the longest time the event loop was blocked (the largest gap between the ticks
// of a zero-interval heartbeat timer). Runs alternate between the two; medians are reported.
// Aim: total within 1.5x of the bare widget, no stall above 50 ms, and memory that stops
// growing once the log passes the 4 MB kept on screen (resident memory is sampled after each
// quarter of the chunks). Each screen run also checks that the screen and the state kept no
// more than 4 MB and that the log file, once written, holds the whole log byte for byte.
#include "BenchStats.h"
#include "InstallationController.h"
#include "InstallationState.h"
#include "InstallationView.h"
#include "LogFile.h"
#include "LogView.h"
#include "Motion.h"
#include "Platform.h"
#include "ProcessMemory.h"
#include "Theme.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTimer>

#include <QCoro/QCoroTask>
#include <QCoro/QCoroTimer>

#include <cstdio>
#include <functional>
#include <vector>

namespace {

using qf::bench::median;

constexpr int kChunkBytes = 4096;

// The log, cut into chunks of 4 KB (the last one shorter), lines split across chunks as reads split them.
QStringList makeChunks(int lines)
{
    QString log;
    log.reserve(qsizetype(lines) * 81);
    for (int i = 0; i < lines; ++i) {
        log += QStringLiteral("npm http fetch GET 200 https://registry.npmjs.org/package-%1 %2ms (cache miss)\n")
                   .arg(i, 6, 10, QLatin1Char('0'))
                   .arg(i % 997, 3);
    }
    QStringList chunks;
    for (qsizetype at = 0; at < log.size(); at += kChunkBytes)
        chunks << log.mid(at, kChunkBytes);
    return chunks;
}

// Measures the longest gap between two turns of the event loop while it runs.
class StallMeter {
public:
    StallMeter()
    {
        m_timer.setInterval(0);
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            const double now = m_clock.nsecsElapsed() / 1.0e6;
            m_longest = std::max(m_longest, now - m_last);
            m_last = now;
        });
        m_clock.start();
        m_timer.start();
    }
    double longestMs() const { return m_longest; }

private:
    QTimer m_timer;
    QElapsedTimer m_clock;
    double m_last = 0;
    double m_longest = 0;
};

struct Measurement {
    double totalMs = 0;
    double longestStallMs = 0;
    std::vector<long> residentKBAtQuarters;
    bool bounded = true;   // the state and the screen kept at most their limit
    bool fileWhole = true; // the log file holds every chunk
};

// Hands the chunks to `deliver`, one per turn of the event loop, sampling memory at quarters.
QCoro::Task<> pour(QStringList chunks, std::function<void(const QString&)> deliver, std::vector<long>* samples)
{
    const qsizetype quarter = std::max<qsizetype>(1, chunks.size() / 4);
    for (qsizetype i = 0; i < chunks.size(); ++i) {
        deliver(chunks[i]);
        if (samples && (i + 1) % quarter == 0)
            samples->push_back(qf::residentMemoryKB());
        co_await QCoro::sleepFor(std::chrono::milliseconds(0));
    }
}

// Runs the event loop until `finished` says so, then lets the last paint happen.
void runUntil(const std::function<bool()>& finished)
{
    while (!finished())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents();
}

Measurement measureBare(const QStringList& chunks)
{
    QPlainTextEdit edit;
    edit.setReadOnly(true);
    edit.setFont(qf::ui::Theme::font(10, QFont::Normal, qf::ui::FontDesign::monospaced));
    edit.resize(900, 700);
    edit.show();
    QCoreApplication::processEvents();

    Measurement result;
    StallMeter stalls;
    QElapsedTimer clock;
    clock.start();
    bool done = false;
    QCoro::connect(pour(
                       chunks,
                       [&edit](const QString& chunk) {
                           QTextCursor cursor(edit.document());
                           cursor.movePosition(QTextCursor::End);
                           cursor.insertText(chunk);
                       },
                       nullptr),
                   &edit, [&done] { done = true; });
    runUntil([&done] { return done; });
    result.totalMs = clock.nsecsElapsed() / 1.0e6;
    result.longestStallMs = stalls.longestMs();
    return result;
}

// An installer whose one run is a chatty install: the chunks, then success.
class ChattySetup : public qf::SetupService {
public:
    explicit ChattySetup(QStringList chunks, std::vector<long>* samples)
        : m_chunks(std::move(chunks)), m_samples(samples)
    {
    }
    QCoro::Task<QList<qf::SetupStep>> setupSteps(qf::CLITool) override
    {
        QList<qf::SetupStep> steps{{qf::SetupStepType::createDeveloperFolder},
                                   {qf::SetupStepType::checkGit},
                                   {qf::SetupStepType::installTool}};
        co_return steps;
    }
    QCoro::Task<qf::Result<void>> runSetup(qf::CLITool, StepUpdate update, Output output, qf::Cancellation) override
    {
        update(qf::SetupStepType::installTool, qf::SetupStepStatus::inProgress, std::nullopt);
        co_await pour(m_chunks, output, m_samples);
        update(qf::SetupStepType::installTool, qf::SetupStepStatus::completed, std::nullopt);
        co_return qf::Result<void>();
    }

private:
    QStringList m_chunks;
    std::vector<long>* m_samples;
};

Measurement measureScreen(const QStringList& chunks, const QString& whole, qf::Platform& platform, bool sampleMemory)
{
    Measurement result;
    QTemporaryDir logFolder;
    const qf::LogBook logs(logFolder.path());
    qf::InstallationState state;
    state.setSelectedTool(qf::CLITool::geminiCLI);
    state.setCurrentStep(qf::InstallationStep::installation);
    ChattySetup setup(chunks, sampleMemory ? &result.residentKBAtQuarters : nullptr);
    qf::InstallationController controller(state, setup, logs);
    auto* view = new qf::InstallationView(state, controller, platform);
    view->resize(900, 700);
    // "Details" opens as soon as there is a log to show, as a curious user would.
    QObject::connect(&state, &qf::InstallationState::installationOutputChanged, view, [view] {
        auto* details = view->findChild<QAbstractButton*>(QStringLiteral("detailsButton"));
        if (!view->showDetails() && details && details->isVisible())
            details->click();
    });

    StallMeter stalls;
    QElapsedTimer clock;
    clock.start();
    view->show(); // starts the installation
    runUntil([&controller] { return controller.installationComplete(); });
    result.totalMs = clock.nsecsElapsed() / 1.0e6;
    result.longestStallMs = stalls.longestMs();
    const qsizetype limit = state.installationLog().limit();
    result.bounded = state.installationOutput().size() <= limit && view->logView()->text().size() <= limit;
    delete view;

    // Outside the measured time: the file, once everything is written, against the log.
    const std::shared_ptr<const qf::LogFile> file = controller.logFile();
    std::optional<QString> written;
    bool read = false;
    QCoro::connect(file->readWhole(), &controller, [&](const std::optional<QString>& text) {
        written = text;
        read = true;
    });
    runUntil([&read] { return read; });
    result.fileWhole = written == whole;
    return result;
}

} // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int lines = arguments.size() > 1 ? arguments[1].toInt() : 100000;
    const int runs = arguments.size() > 2 ? arguments[2].toInt() : 3;
    const QStringList chunks = makeChunks(lines);
    const QString whole = chunks.join(QString());
    const std::unique_ptr<qf::Platform> platform = qf::createNativePlatform();
    qint64 bytes = 0;
    for (const QString& chunk : chunks)
        bytes += chunk.size();
    std::printf("%d lines, %.1f MB in %lld chunks of %d bytes\n", lines, bytes / 1.0e6, qlonglong(chunks.size()),
                kChunkBytes);

    std::vector<double> bareTotal, bareStall, screenTotal, screenStall;
    std::vector<long> quarters;
    bool bounded = true;
    bool fileWhole = true;
    for (int run = 0; run < runs; ++run) {
        const bool screenFirst = run % 2 == 1;
        const auto bare = [&] {
            const Measurement m = measureBare(chunks);
            bareTotal.push_back(m.totalMs);
            bareStall.push_back(m.longestStallMs);
        };
        const auto screen = [&] {
            const Measurement m = measureScreen(chunks, whole, *platform, run == 0);
            screenTotal.push_back(m.totalMs);
            screenStall.push_back(m.longestStallMs);
            bounded = bounded && m.bounded;
            fileWhole = fileWhole && m.fileWhole;
            if (run == 0)
                quarters = m.residentKBAtQuarters;
        };
        if (screenFirst) {
            screen();
            bare();
        } else {
            bare();
            screen();
        }
        std::printf("run %d: bare %.0f ms (stall %.1f ms), screen %.0f ms (stall %.1f ms)\n", run + 1, bareTotal.back(),
                    bareStall.back(), screenTotal.back(), screenStall.back());
    }

    const double ratio = median(screenTotal) / median(bareTotal);
    std::printf(
        "\n(the bare widget keeps the whole log; the screen keeps the newest 4 MB and writes it all to a file)\n");
    std::printf("median total: bare %.0f ms, screen %.0f ms -> %.2fx (aim: within 1.5x) %s\n", median(bareTotal),
                median(screenTotal), ratio, ratio <= 1.5 ? "MET" : "NOT MET");
    const double stall = *std::max_element(screenStall.begin(), screenStall.end());
    std::printf("longest stall of the screen: %.1f ms, of the bare widget: %.1f ms (aim: screen under 50 ms) %s\n",
                stall, *std::max_element(bareStall.begin(), bareStall.end()), stall < 50 ? "MET" : "NOT MET");
    if (quarters.size() == 4) {
        std::printf("resident memory after each quarter of the log (first screen run): %ld, %ld, %ld, %ld MB\n",
                    quarters[0] / 1024, quarters[1] / 1024, quarters[2] / 1024, quarters[3] / 1024);
        std::printf("growth per quarter: %ld, %ld, %ld MB\n", (quarters[1] - quarters[0]) / 1024,
                    (quarters[2] - quarters[1]) / 1024, (quarters[3] - quarters[2]) / 1024);
    }
    std::printf("state and screen kept at most 4 MB: %s; log file whole in every run: %s\n", bounded ? "yes" : "NO",
                fileWhole ? "yes" : "NO");
    return bounded && fileWhole ? 0 : 1;
}
