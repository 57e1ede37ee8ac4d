// The table of all results: what each operation took, how that grew with the size, and how it
// compares to the bound that was measured in the same run.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace emporium::bench {

struct Measurement {
    const char* name;
    const char* bound; // the measurement of the same size, or of none, that this one is set beside
    std::function<void(benchmark::State& state)> run;
    bool wallClock = false;
    std::vector<std::int64_t> sizes = {500, 5000, 32767}; // what the program is made for; its limit
};

/// Three digits of the number, with a point on every desktop.
std::string Digits(double value);

/// Takes the measurements. Their progress goes to the standard error, the table to the output.
void RunAll(int argc, char** argv, const std::vector<Measurement>& measurements);

} // namespace emporium::bench
