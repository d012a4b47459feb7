// Shell runner benchmark: what the runner costs next to starting the shell directly.
//
//   qf_shell_bench [runs] [stream-runs]     (defaults: 40 and 5)
//
// 1. Overhead: ShellRunner::run("true"), awaited on the event loop, next to a plain QProcess
//    running `/bin/zsh -l -c true` with the same environment (started and waited for
//    directly). Interleaved, the order alternating; median and minimum of each. Aim: the
//    runner's median under 1.10x the direct one.
// 2. Streaming: 50 MB of text through runWithStreaming("cat FILE") into a consumer that
//    appends every chunk to a QString, next to `zsh -l -c 'cat FILE'` writing to the null
//    device. Aim: at least half the raw throughput, with the peak memory growth bounded by
//    the size of the text received. For reference, also the same command started directly
//    with its output decoded into a QString: the consumer's own share of the time.
//
// Every file lives in a temporary folder; HOME is used as it is and never written to.
#include "BenchStats.h"
#include "Platform.h"
#include "ProcessMemory.h"
#include "ShellQuote.h"
#include "ShellRunner.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

#include <QCoro/QCoroTask>

#include <algorithm>
#include <cstdio>
#include <optional>
#include <vector>

namespace {

using qf::bench::median;
using qf::bench::minimum;

using qf::Result;
using qf::ShellRunner;

constexpr qint64 kStreamBytes = 50LL * 1024 * 1024;
constexpr int kLineLength = 100; // including the line break
constexpr double kMiB = 1024.0 * 1024.0;

double millisecondsSince(const QElapsedTimer& timer) { return timer.nsecsElapsed() / 1.0e6; }

// Peak resident memory of this process so far, in KiB; nothing when it cannot be read.
std::optional<qint64> peakResidentKiB()
{
    const long kib = qf::peakResidentMemoryKB();
    return kib > 0 ? std::optional<qint64>(kib) : std::nullopt;
}

QString formatMiB(std::optional<qint64> kib)
{
    return kib ? QString::number(*kib / 1024.0, 'f', 1) + QStringLiteral(" MB") : QStringLiteral("unknown");
}

// Lines of printable ASCII, each `kLineLength` bytes with its line break, `bytes` in all.
bool writeTextFile(const QString& path, qint64 bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QByteArray block;
    const int linesPerBlock = 1024 * 1024 / kLineLength;
    qint64 lineNumber = 0;
    qint64 written = 0;
    while (written < bytes) {
        block.clear();
        for (int i = 0; i < linesPerBlock; ++i, ++lineNumber) {
            QByteArray line = QByteArray::number(lineNumber).rightJustified(8, '0') + ' ';
            for (int c = 0; line.size() < kLineLength - 1; ++c)
                line += char(' ' + 1 + (lineNumber * 7 + c) % 94); // '!' to '~'
            line += '\n';
            block += line;
        }
        const qint64 chunk = std::min<qint64>(block.size(), bytes - written);
        if (file.write(block.constData(), chunk) != chunk)
            return false;
        written += chunk;
    }
    return file.flush();
}

// `zsh -l -c LINE` started directly, with the runner's environment; waits for it here.
// Returns the wall time in milliseconds, or a negative value when the command failed.
double runDirectly(const QString& shell, const QString& line, const QProcessEnvironment& environment,
                   bool discardOutput)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    if (discardOutput)
        process.setStandardOutputFile(QProcess::nullDevice());
    QElapsedTimer timer;
    timer.start();
    process.start(shell, {QStringLiteral("-l"), QStringLiteral("-c"), line});
    const bool finished = process.waitForFinished(-1);
    const double elapsed = millisecondsSince(timer);
    if (!finished || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return -1;
    return elapsed;
}

// The same command started directly, its output read into a QString the way the consumer
// builds it, waiting here: the cost of the work itself, without the runner around it.
double runDirectlyIntoString(const QString& shell, const QString& line, const QProcessEnvironment& environment,
                             qint64& length)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    QString text;
    QElapsedTimer timer;
    timer.start();
    process.start(shell, {QStringLiteral("-l"), QStringLiteral("-c"), line});
    if (!process.waitForStarted(-1))
        return -1;
    while (process.waitForReadyRead(-1))
        text += QString::fromUtf8(process.readAllStandardOutput());
    const bool finished = process.state() == QProcess::NotRunning || process.waitForFinished(-1);
    text += QString::fromUtf8(process.readAllStandardOutput());
    const double elapsed = millisecondsSince(timer);
    length = text.size();
    if (!finished || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return -1;
    return elapsed;
}

QCoro::Task<bool> benchmarkOverhead(ShellRunner& runner, int runs)
{
    const QProcessEnvironment environment = runner.commandEnvironment();
    std::printf("1. run() overhead: `%s -l -c true`, %d runs of each, interleaved\n",
                qPrintable(runner.configuration().shell), runs);

    // Warm-up: the shell binary and its start files into the page cache.
    for (int i = 0; i < 3; ++i) {
        const Result<QString> warm = co_await runner.run(QStringLiteral("true"));
        if (!warm) {
            std::printf("   run(\"true\") failed: %s\n", qPrintable(warm.error().errorDescription()));
            co_return false;
        }
        runDirectly(runner.configuration().shell, QStringLiteral("true"), environment, false);
    }

    std::vector<double> viaRunner;
    std::vector<double> direct;
    for (int i = 0; i < runs; ++i) {
        for (int turn = 0; turn < 2; ++turn) {
            const bool runnerTurn = (turn == 0) == (i % 2 == 0);
            if (runnerTurn) {
                QElapsedTimer timer;
                timer.start();
                const Result<QString> result = co_await runner.run(QStringLiteral("true"));
                const double elapsed = millisecondsSince(timer);
                if (!result) {
                    std::printf("   run(\"true\") failed: %s\n", qPrintable(result.error().errorDescription()));
                    co_return false;
                }
                viaRunner.push_back(elapsed);
            } else {
                const double elapsed = runDirectly(runner.configuration().shell, QStringLiteral("true"), environment,
                                                   false);
                if (elapsed < 0) {
                    std::printf("   direct zsh -l -c true failed\n");
                    co_return false;
                }
                direct.push_back(elapsed);
            }
        }
    }

    const double runnerMedian = median(viaRunner);
    const double directMedian = median(direct);
    const double ratio = directMedian > 0 ? runnerMedian / directMedian : 0;
    std::printf("   %-30s median %7.2f ms   min %7.2f ms\n", "ShellRunner::run(\"true\")", runnerMedian,
                minimum(viaRunner));
    std::printf("   %-30s median %7.2f ms   min %7.2f ms\n", "QProcess zsh -l -c true", directMedian, minimum(direct));
    std::printf("   ratio of medians %.3fx (min %.3fx)   aim: under 1.10x   %s\n", ratio,
                minimum(direct) > 0 ? minimum(viaRunner) / minimum(direct) : 0.0, ratio < 1.10 ? "MET" : "NOT MET");
    co_return true;
}

QCoro::Task<bool> benchmarkStreaming(ShellRunner& runner, int runs)
{
    const QProcessEnvironment environment = runner.commandEnvironment();

    QTemporaryDir folder;
    if (!folder.isValid()) {
        std::printf("   cannot create a temporary folder\n");
        co_return false;
    }
    const QString path = folder.filePath(QStringLiteral("stream.txt"));
    if (!writeTextFile(path, kStreamBytes)) {
        std::printf("   cannot write %s\n", qPrintable(path));
        co_return false;
    }
    const qint64 fileSize = QFileInfo(path).size();
    const double fileMiB = fileSize / kMiB;
    const QString command = QStringLiteral("cat ") + qf::shellQuote(path, qf::Quoting::always);
    std::printf("\n2. Streaming: %s, %.1f MB of text (%lld bytes), %d runs of each, interleaved\n", qPrintable(command),
                fileMiB, static_cast<long long>(fileSize), runs);

    std::vector<double> streamedMs;
    std::vector<double> lastChunkMs;
    std::vector<double> rawMs;
    std::vector<double> decodedMs;
    std::optional<qint64> peakBefore;
    std::optional<qint64> peakAfter;
    qint64 receivedLength = 0;
    qint64 chunks = 0;
    bool lengthMatches = true;

    for (int i = 0; i < runs; ++i) {
        for (int turn = 0; turn < 3; ++turn) {
            // The order rotates from run to run; the very first is the runner's.
            const int which = (turn + i) % 3;
            if (which == 2) {
                qint64 length = 0;
                const double elapsed = runDirectlyIntoString(runner.configuration().shell, command, environment,
                                                             length);
                if (elapsed < 0 || length != fileSize) {
                    std::printf("   direct zsh -l -c 'cat FILE' read into a QString failed\n");
                    co_return false;
                }
                decodedMs.push_back(elapsed);
                continue;
            }
            if (which == 1) {
                const double elapsed = runDirectly(runner.configuration().shell, command, environment, true);
                if (elapsed < 0) {
                    std::printf("   direct zsh -l -c 'cat FILE' failed\n");
                    co_return false;
                }
                rawMs.push_back(elapsed);
                continue;
            }

            // The first streamed run is the one whose memory is reported: nothing of this
            // size has been held by the process before it.
            if (streamedMs.empty())
                peakBefore = peakResidentKiB();
            QString received;
            qint64 chunkCount = 0;
            QElapsedTimer timer;
            double lastChunk = 0;
            auto consumer = [&received, &chunkCount, &timer, &lastChunk](const QString& chunk) {
                received += chunk;
                ++chunkCount;
                lastChunk = millisecondsSince(timer);
            };
            timer.start();
            const Result<void> result = co_await runner.runWithStreaming(command, consumer);
            const double elapsed = millisecondsSince(timer);
            if (!result) {
                std::printf("   runWithStreaming failed: %s\n", qPrintable(result.error().errorDescription()));
                co_return false;
            }
            if (streamedMs.empty()) {
                peakAfter = peakResidentKiB();
                receivedLength = received.size();
                chunks = chunkCount;
            }
            lengthMatches = lengthMatches && received.size() == fileSize;
            streamedMs.push_back(elapsed);
            lastChunkMs.push_back(lastChunk);
        }
    }

    const double streamed = median(streamedMs);
    const double lastChunk = median(lastChunkMs);
    const double raw = median(rawMs);
    const double decoded = median(decodedMs);
    const double decodedRate = fileMiB / (decoded / 1000.0);
    const double streamedRate = fileMiB / (streamed / 1000.0);
    const double lastChunkRate = fileMiB / (lastChunk / 1000.0);
    const double rawRate = fileMiB / (raw / 1000.0);
    const double ratio = streamedRate / rawRate;

    std::printf("   %-44s median %8.1f ms  %8.1f MB/s\n", "runWithStreaming, whole call", streamed, streamedRate);
    std::printf("   %-44s median %8.1f ms  %8.1f MB/s\n", "runWithStreaming, until the last chunk", lastChunk,
                lastChunkRate);
    std::printf("   %-44s median %8.1f ms  %8.1f MB/s\n", "QProcess zsh -l -c 'cat FILE' > /dev/null", raw, rawRate);
    std::printf("   %-44s median %8.1f ms  %8.1f MB/s\n", "reference: QProcess read into a QString", decoded,
                decodedRate);
    std::printf("   (the whole call includes the runner's fixed 100 ms wait after the command has ended;\n"
                "    the reference does the consumer's work, decoding and appending, without the runner)\n");
    std::printf("   throughput ratio %.2f of raw (until the last chunk: %.2f)   aim: at least 0.50   %s\n", ratio,
                lastChunkRate / rawRate, ratio >= 0.5 ? "MET" : "NOT MET");
    std::printf("   against the reference: %.2f (until the last chunk: %.2f)\n", streamedRate / decodedRate,
                lastChunkRate / decodedRate);
    std::printf("   received %lld characters in %lld chunks, file size %lld bytes: %s\n",
                static_cast<long long>(receivedLength), static_cast<long long>(chunks),
                static_cast<long long>(fileSize), lengthMatches ? "equal in every run" : "DIFFERENT");

    const double textMiB = receivedLength * 2 / kMiB; // UTF-16
    std::printf("   peak resident memory before %s, after %s", qPrintable(formatMiB(peakBefore)),
                qPrintable(formatMiB(peakAfter)));
    if (peakBefore && peakAfter) {
        const double growthMiB = (*peakAfter - *peakBefore) / 1024.0;
        std::printf(": growth %.1f MB = %.2fx the %.1f MB the received QString holds\n", growthMiB, growthMiB / textMiB,
                    textMiB);
    } else {
        std::printf("\n");
    }
    co_return lengthMatches;
}

QCoro::Task<int> benchmark(ShellRunner& runner, int runs, int streamRuns)
{
    const bool overhead = co_await benchmarkOverhead(runner, runs);
    std::fflush(stdout);
    const bool streaming = co_await benchmarkStreaming(runner, streamRuns);
    std::fflush(stdout);
    co_return (overhead && streaming) ? 0 : 1;
}

int positiveArgument(int argc, char* argv[], int index, int fallback)
{
    if (argc <= index)
        return fallback;
    bool ok = false;
    const int value = QString::fromLocal8Bit(argv[index]).toInt(&ok);
    return ok && value > 0 ? value : fallback;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const int runs = positiveArgument(argc, argv, 1, 40);
    const int streamRuns = positiveArgument(argc, argv, 2, 5);
    const std::unique_ptr<qf::Platform> platform = qf::createNativePlatform();
    ShellRunner runner(ShellRunner::standardConfiguration(*platform));
    return QCoro::waitFor(benchmark(runner, runs, streamRuns));
}
