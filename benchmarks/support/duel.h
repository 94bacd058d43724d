#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <functional>
#include <string>
#include <utility>
#include <vector>

/// Runs candidates for the same work side by side and says how many times as fast each is as another.
///
/// Every candidate runs once a round, the first round is dropped. Times are processor times, or those of a
/// clock where the waiting is what counts; a ratio is the median of the ratios within a round, so that a
/// machine that is busy for a while does not favour anyone.
class Duel {
public:
    enum Time { OfProcessors, OfWaiting };

    /// \a items is the number of pieces of work in one run; times are printed per piece.
    Duel(std::string title, double items, Time time = OfProcessors)
        : m_title(std::move(title)), m_items(items), m_time(time)
    {
    }

    void add(const std::string& name, std::function<void()> run)
    {
        m_candidates.push_back({name, std::move(run), {}});
    }

    void run(int rounds)
    {
        for (int round = -1; round < rounds; ++round)
            for (Candidate& candidate : m_candidates) {
                const double start = now();
                candidate.run();
                if (round >= 0)
                    candidate.seconds.push_back(now() - start);
            }
        std::printf("\n%s\n", m_title.c_str());
        for (const Candidate& candidate : m_candidates)
            std::printf("  %-44s %9.2f ns  %7.2fx\n", candidate.name.c_str(),
                        median(candidate.seconds) / m_items * 1e9, ratio(candidate, m_candidates.front()));
    }

    /// Prints how many \a pieces of work a second \a name does.
    void showRate(const std::string& name, const std::string& pieces) const
    {
        std::printf("  %s makes %.0f %s a second\n", name.c_str(), m_items / median(find(name).seconds),
                    pieces.c_str());
    }

    /// Prints how many times as fast \a ours is as \a peer, against the ratio to be held; returns whether it
    /// holds.
    bool demand(const std::string& ours, const std::string& peer, double bar) const
    {
        return judge(ours, peer, ratio(find(ours), find(peer)), bar);
    }

    /// The same against whichever of the others, those named in \a but left out, is the fastest.
    bool demandAgainstFastest(const std::string& ours, double bar,
                              const std::vector<std::string>& but = {}) const
    {
        const Candidate* fastest = nullptr;
        for (const Candidate& candidate : m_candidates) {
            const bool isLeftOut =
                candidate.name == ours || std::count(but.begin(), but.end(), candidate.name) > 0;
            if (!isLeftOut && (!fastest || median(candidate.seconds) < median(fastest->seconds)))
                fastest = &candidate;
        }
        return fastest && judge(ours, "the fastest peer, " + fastest->name, ratio(find(ours), *fastest), bar);
    }

private:
    struct Candidate {
        std::string name;
        std::function<void()> run;
        std::vector<double> seconds;
    };

    double now() const
    {
        if (m_time == OfProcessors)
            return double(std::clock()) / CLOCKS_PER_SEC;
        using Seconds = std::chrono::duration<double>;
        return Seconds(std::chrono::steady_clock::now().time_since_epoch()).count();
    }

    static double median(std::vector<double> values)
    {
        const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
        std::nth_element(values.begin(), middle, values.end());
        return *middle;
    }

    static double ratio(const Candidate& ours, const Candidate& peer)
    {
        std::vector<double> ratios;
        for (std::size_t i = 0; i < ours.seconds.size(); ++i)
            ratios.push_back(peer.seconds[i] / ours.seconds[i]);
        return median(ratios);
    }

    const Candidate& find(const std::string& name) const
    {
        return *std::find_if(m_candidates.begin(), m_candidates.end(),
                             [&name](const Candidate& candidate) { return candidate.name == name; });
    }

    static bool judge(const std::string& ours, const std::string& peer, double ratio, double bar)
    {
        std::printf("  %s %s is %.2f times as fast as %s (to hold: %.2f)\n", ratio >= bar ? "ok  " : "LOW ",
                    ours.c_str(), ratio, peer.c_str(), bar);
        return ratio >= bar;
    }

    std::string m_title;
    double m_items;
    Time m_time;
    std::vector<Candidate> m_candidates;
};

/// The most memory that the process ever held, in MiB; 0 where the system does not tell.
inline double peakMemory()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
        if (word == "VmHWM:") {
            double kib = 0;
            status >> kib;
            return kib / 1024;
        }
    return 0;
}
