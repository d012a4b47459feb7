// Start-up benchmark: time from process start to the first painted onboarding frame, and the
// resident memory at that moment, next to a bare Qt window built the same way.
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
};

bool runOnce(const char* program, Sample& sample)
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
        execl(program, program, static_cast<char*>(nullptr));
        _exit(127);
    }
    close(fds[1]);
    std::string output;
    char buffer[256];
    ssize_t n;
    while (output.find('\n') == std::string::npos && (n = read(fds[0], buffer, sizeof buffer)) > 0)
        output.append(buffer, size_t(n));
    const auto end = std::chrono::steady_clock::now();
    close(fds[0]);
    int status = 0;
    waitpid(pid, &status, 0);

    const auto at = output.find("first-frame rss_kb=");
    if (at == std::string::npos)
        return false;
    sample.milliseconds = std::chrono::duration<double, std::milli>(end - start).count();
    sample.rssKB = std::strtol(output.c_str() + at + std::strlen("first-frame rss_kb="), nullptr, 10);
    return true;
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

} // namespace

int main(int argc, char** argv)
{
    const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 15;
    const char* platform = std::getenv("QT_QPA_PLATFORM");
    std::printf("platform: %s, %d runs each\n",
                platform ? platform : (std::getenv("DISPLAY") ? "xcb (DISPLAY)" : "default"), runs);

    std::vector<Sample> app, bare;
    Sample warm;
    runOnce(QUILLFORGE_APP_PATH, warm); // fill the file cache before measuring
    runOnce(QUILLFORGE_BARE_PATH, warm);
    for (int i = 0; i < runs; ++i) {
        Sample sample;
        if (!runOnce(QUILLFORGE_BARE_PATH, sample)) {
            std::fprintf(stderr, "bare window did not report a frame\n");
            return 1;
        }
        bare.push_back(sample);
        if (!runOnce(QUILLFORGE_APP_PATH, sample)) {
            std::fprintf(stderr, "quillforge did not report a frame\n");
            return 1;
        }
        app.push_back(sample);
    }
    summarise("bare window", bare);
    summarise("quillforge", app);
    std::vector<double> a, b;
    for (const Sample& s : app)
        a.push_back(s.milliseconds);
    for (const Sample& s : bare)
        b.push_back(s.milliseconds);
    std::printf("ratio (median quillforge / median bare): %.2fx   (aim: under 1.30x, under 60 MB)\n",
                median(a) / median(b));
    return 0;
}
