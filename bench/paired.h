#pragma once
// A figure beside its raw twin. The project's run and raw SQLite's run of the
// same work alternate, pair after pair (AB, BA, AB, ...), so that a change of
// load on the shared machine falls on both halves of a pair; each pair gives a
// ratio, raw time over project time (above 1: the project is faster), and the
// table shows the least and the median of those ratios beside the median
// rates. A loaded machine can neither fake nor hide a change that way.
//
// Each side runs one repetition and returns its own time in seconds, so that
// preparing a fresh copy of a file stays out of the figure; a side that times
// itself with bench::Clock gives its processor time too. Beside the ratio of
// elapsed times the table shows the ratio of processor times (user and
// system): on a machine where other builds take the processors, the elapsed
// time of a run that waits on the disk swells less than that of a run that
// computes, and the processor times show what each side itself spent.
#include <QElapsedTimer>
#include <QString>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <time.h>
#include <vector>

namespace bench {

struct Pair {
    const char *work;     // what is measured
    double items = 1;     // units of work of one repetition, for the rates
    const char *unit = "/s";
    std::function<double()> project;
    std::function<double()> raw;
};

// Processor time of this process so far, user and system, in seconds.
inline double processorSeconds()
{
    timespec ts{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &ts);
    return double(ts.tv_sec) + double(ts.tv_nsec) / 1e9;
}

// Processor time of the last section a Clock timed; negative when none did.
inline double &lastProcessorSeconds()
{
    static double seconds = -1;
    return seconds;
}

// Times a section: elapsed time returned, processor time kept for run().
class Clock {
public:
    Clock() : cpu_(processorSeconds()) { wall_.start(); }
    double stop()
    {
        const double wall = double(wall_.nsecsElapsed()) / 1e9;
        lastProcessorSeconds() = processorSeconds() - cpu_;
        return wall;
    }

private:
    QElapsedTimer wall_;
    double cpu_;
};

// Times a callable.
inline double seconds(const std::function<void()> &fn)
{
    Clock c;
    fn();
    return c.stop();
}

// Pairs from "--pares=N" or HAB_BENCH_PARES, else the given default.
inline int pairsWanted(int argc, char **argv, int fallback)
{
    for (int i = 1; i < argc; ++i)
        if (std::strncmp(argv[i], "--pares=", 8) == 0)
            return std::max(1, std::atoi(argv[i] + 8));
    if (const char *e = std::getenv("HAB_BENCH_PARES"))
        return std::max(1, std::atoi(e));
    return fallback;
}

inline double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    const size_t n = v.size();
    return n % 2 ? v[n / 2] : (v[n / 2 - 1] + v[n / 2]) / 2;
}

inline QString rate(double perSecond, const char *unit)
{
    if (perSecond >= 1e4)
        return QStringLiteral("%1k%2").arg(perSecond / 1e3, 0, 'f', 1).arg(QLatin1String(unit));
    return QStringLiteral("%1%2").arg(perSecond, 0, 'f', 2).arg(QLatin1String(unit));
}

// Runs every pair `pairs` times, alternating, and prints one line each.
inline void run(const std::vector<Pair> &list, int pairs)
{
    std::printf("%-52s %12s %12s %9s %9s %9s %9s %9s %9s\n", "work", "project", "raw", "ratio min", "median",
                "cpu min", "cpu med", "proj med", "raw med");
    // One side's run: its elapsed time, and its processor time (the section's
    // when it timed itself with a Clock, else the whole call's).
    auto once = [](const std::function<double()> &side, double &cpu) {
        lastProcessorSeconds() = -1;
        const double before = processorSeconds();
        const double wall = side();
        cpu = lastProcessorSeconds() >= 0 ? lastProcessorSeconds() : processorSeconds() - before;
        return wall;
    };
    for (const Pair &p : list) {
        std::vector<double> ratios, cpuRatios, tp, tr;
        double cp = 0, cr = 0;
        once(p.project, cp);  // warm-up of both: caches, files, the page cache
        once(p.raw, cr);
        for (int i = 0; i < pairs; ++i) {
            double a, b;
            if (i % 2 == 0) {
                a = once(p.project, cp);
                b = once(p.raw, cr);
            } else {
                b = once(p.raw, cr);
                a = once(p.project, cp);
            }
            tp.push_back(a);
            tr.push_back(b);
            ratios.push_back(b / a);
            cpuRatios.push_back(cr / cp);
        }
        const double mp = median(tp), mr = median(tr);
        std::printf("%-52s %12s %12s %9.2f %9.2f %9.2f %9.2f %8.3fs %8.3fs\n", p.work,
                    qPrintable(rate(p.items / mp, p.unit)), qPrintable(rate(p.items / mr, p.unit)),
                    *std::min_element(ratios.begin(), ratios.end()), median(ratios),
                    *std::min_element(cpuRatios.begin(), cpuRatios.end()), median(cpuRatios), mp, mr);
        std::fflush(stdout);
    }
}

} // namespace bench
