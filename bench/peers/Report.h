#pragma once

#include <sys/resource.h>

#include <chrono>
#include <cstddef>
#include <cstdio>

/// The JSON lines that all measured programs print, and the clock they use. Plain C++, because the peers
/// share nothing else with us.
namespace Report {

class Stopwatch {
public:
    [[nodiscard]] double elapsedMs() const
    {
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - m_start).count();
    }

private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

/// The most memory this process ever had resident.
inline long peakRssKib()
{
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

inline void parse(const char *peer, std::size_t items, std::size_t bytes, double ms)
{
    std::printf("{\"peer\":\"%s\",\"what\":\"parse\",\"items\":%zu,\"bytes\":%zu,\"ms\":%.3f,\"rss_kib\":%ld}\n", peer,
                items, bytes, ms, peakRssKib());
    std::fflush(stdout);
}

inline void expand(const char *peer, int rep, std::size_t occurrences, double ms)
{
    std::printf("{\"peer\":\"%s\",\"what\":\"expand\",\"rep\":%d,\"occ\":%zu,\"ms\":%.3f}\n", peer, rep, occurrences, ms);
    std::fflush(stdout);
}

} // namespace Report
