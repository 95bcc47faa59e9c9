// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <ctime>
#include <fstream>
#include <map>
#include <string>

#ifdef __GLIBC__
#include <malloc.h>
#endif

/// Sets the counter "ratio": the processor time of an iteration compared with that of the row of
/// the same benchmark whose first argument was @p base, measured before.
class RatioTimer
{
public:
    RatioTimer(benchmark::State& state, std::int64_t base)
        : m_state(state), m_base(base), m_start(std::clock())
    {}

    void stop()
    {
        const double time = double(std::clock() - m_start) / double(m_state.iterations());
        static std::map<std::int64_t, double> bases;
        if (m_state.range(0) == m_base)
            bases[m_base] = time;
        m_state.counters["ratio"] = time / bases[m_base];
    }

private:
    benchmark::State& m_state;
    const std::int64_t m_base;
    const std::clock_t m_start;
};

/// How much more memory the process has taken since this was made. Zero where nobody tells.
class MemoryGrowth
{
public:
    MemoryGrowth() : m_allocated(allocatedNow())
    {
        std::ofstream("/proc/self/clear_refs") << 5; // the peak starts anew
        m_resident = status("VmRSS:");
    }

    double allocated() const { return allocatedNow() - m_allocated; }
    double peak() const { return status("VmHWM:") - m_resident; }

private:
    static double allocatedNow()
    {
#ifdef __GLIBC__
        const auto info = mallinfo2();
        return double(info.uordblks) + double(info.hblkhd);
#else
        return 0.0;
#endif
    }

    static double status(const std::string& name)
    {
        std::ifstream file("/proc/self/status");
        std::string word;
        double kilobytes = 0.0;
        while (file >> word) {
            if (word == name)
                file >> kilobytes;
        }
        return kilobytes * 1024;
    }

    const double m_allocated;
    double m_resident;
};
