// The table of all results: what each operation took, how that grew with the size, and how it
// compares to the bound that was measured in the same run.
#pragma once

#include <benchmark/benchmark.h>

#include <string>

namespace emporium::bench {

/// The sizes that the program is made for, and its limit.
void Sizes(benchmark::internal::Benchmark* benchmark);

/// Names the benchmark beside which, at the same size or at none, this one is set.
void Beside(benchmark::State& state, const char* bound);

/// Three digits of the number, with a point on every desktop.
std::string Digits(double value);

/// Runs the benchmarks. Their progress goes to the standard error, the table to the output.
void RunAll(int argc, char** argv);

} // namespace emporium::bench
