// Start-up benchmark: time from process start to the window's first painted frame, and the
// resident memory at that moment, next to a bare Qt window built the same way; then, for
// Quillforge, the time to the first frame that paints the introduction screen itself (built
// right after the window's first frame).
//
//   qf_startup_bench [runs]       (default 15 runs of each, interleaved)
//
// Each run starts the program with a fresh temporary HOME (so Quillforge opens on the
// introduction) and QUILLFORGE_REPORT_FIRST_FRAME=1; the program prints one line once its
// first frame is painted and exits. Uses the display of the environment (DISPLAY, or
// QT_QPA_PLATFORM=offscreen).
#include "BenchStats.h"

#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace {

using qf::bench::median;
using qf::bench::minimum;

struct Sample {
    double milliseconds = 0;
    long rssKB = 0;
    // Quillforge only: the first frame of the introduction screen.
    double screenMilliseconds = 0;
    long screenRssKB = 0;
};

// The number after `key` in `output`, or -1.
long valueAfter(const std::string& output, const char* key)
{
    const auto at = output.find(key);
    return at == std::string::npos ? -1 : std::strtol(output.c_str() + at + std::strlen(key), nullptr, 10);
}

bool runOnce(const char* program, Sample& sample, bool waitForScreen, const char* argument = nullptr)
{
    QTemporaryDir home;
    if (!home.isValid())
        return false;
    int fds[2];
    if (pipe(fds) != 0)
        return false;
    const std::string homePath = home.path().toStdString();

    const auto start = std::chrono::steady_clock::now();
    const pid_t pid = fork();
    if (pid == 0) {
        dup2(fds[1], STDOUT_FILENO);
        close(fds[0]);
        close(fds[1]);
        setenv("HOME", homePath.c_str(), 1);
        setenv("XDG_CONFIG_HOME", (homePath + "/.config").c_str(), 1);
        setenv("QUILLFORGE_REPORT_FIRST_FRAME", "1", 1);
        execl(program, program, argument, static_cast<char*>(nullptr));
        _exit(127);
    }
    close(fds[1]);
    std::string output;
    char buffer[256];
    ssize_t n;
    const auto since = [start] {
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    };
    while (output.find('\n') == std::string::npos && (n = read(fds[0], buffer, sizeof buffer)) > 0)
        output.append(buffer, size_t(n));
    sample.milliseconds = since();
    if (waitForScreen) {
        while (output.find("screen-frame") == std::string::npos && (n = read(fds[0], buffer, sizeof buffer)) > 0)
            output.append(buffer, size_t(n));
        sample.screenMilliseconds = since();
    }
    close(fds[0]);
    int status = 0;
    waitpid(pid, &status, 0);

    sample.rssKB = valueAfter(output, "first-frame rss_kb=");
    sample.screenRssKB = valueAfter(output, "screen-frame rss_kb=");
    return sample.rssKB >= 0 && (!waitForScreen || sample.screenRssKB >= 0);
}

void summarise(const char* name, const std::vector<Sample>& samples)
{
    std::vector<double> times, rss;
    for (const Sample& s : samples) {
        times.push_back(s.milliseconds);
        rss.push_back(double(s.rssKB));
    }
    std::printf("%-12s first frame: median %7.1f ms  min %7.1f ms  max %7.1f ms   RSS median %6.1f MB\n", name,
                median(times), minimum(times), *std::max_element(times.begin(), times.end()), median(rss) / 1024.0);
}

void summariseScreen(const std::vector<Sample>& samples)
{
    std::vector<double> times, rss;
    for (const Sample& s : samples) {
        times.push_back(s.screenMilliseconds);
        rss.push_back(double(s.screenRssKB));
    }
    std::printf("%-12s screen frame: median %6.1f ms  min %7.1f ms  max %7.1f ms   RSS median %6.1f MB\n", "quillforge",
                median(times), minimum(times), *std::max_element(times.begin(), times.end()), median(rss) / 1024.0);
}

} // namespace

int main(int argc, char** argv)
{
    const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 15;
    const char* platform = std::getenv("QT_QPA_PLATFORM");
    std::printf("platform: %s, %d runs each\n",
                platform ? platform : (std::getenv("DISPLAY") ? "xcb (DISPLAY)" : "default"), runs);

    std::vector<Sample> app, bare, text;
    Sample warm;
    runOnce(QUILLFORGE_APP_PATH, warm, true); // fill the file cache before measuring
    runOnce(QUILLFORGE_BARE_PATH, warm, false);
    for (int i = 0; i < runs; ++i) {
        Sample sample;
        if (!runOnce(QUILLFORGE_BARE_PATH, sample, false)) {
            std::fprintf(stderr, "bare window did not report a frame\n");
            return 1;
        }
        bare.push_back(sample);
        if (!runOnce(QUILLFORGE_BARE_PATH, sample, false, "--text")) {
            std::fprintf(stderr, "bare window with text did not report a frame\n");
            return 1;
        }
        text.push_back(sample);
        if (!runOnce(QUILLFORGE_APP_PATH, sample, true)) {
            std::fprintf(stderr, "quillforge did not report a frame\n");
            return 1;
        }
        app.push_back(sample);
    }
    summarise("bare window", bare);
    summarise("bare + text", text);
    summarise("quillforge", app);
    summariseScreen(app);
    std::vector<double> a, b, t, s;
    for (const Sample& sample : app) {
        a.push_back(sample.milliseconds);
        s.push_back(sample.screenMilliseconds);
    }
    for (const Sample& sample : bare)
        b.push_back(sample.milliseconds);
    for (const Sample& sample : text)
        t.push_back(sample.milliseconds);
    std::printf("ratio (median quillforge / median bare): %.2fx   (aim: at most 1.20x, under 40 MB)\n",
                median(a) / median(b));
    std::printf("introduction (median screen frame / median bare): %.2fx   (aim: at most 1.25x); "
                "against the bare window with one line of text: %.2fx\n",
                median(s) / median(b), median(s) / median(t));
    return 0;
}
