#include "Table.h"

#include <iomanip>
#include <iostream>
#include <map>
#include <sstream>

namespace emporium::bench {

namespace {

// Size and milliseconds, in the order of the sizes.
using Times = std::vector<std::pair<std::string, double>>;

struct Operation {
    std::string name;
    std::string bound;
    std::map<std::int64_t, Times::value_type> times; // by the size's place in the order
};

std::string Joined(const std::vector<std::string>& parts) {
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : " / ") + part;
    return text;
}

// Keeps the medians of a run, or its single results.
class Reporter : public benchmark::ConsoleReporter {
public:
    Reporter() : ConsoleReporter(OO_Tabular) { SetOutputStream(&std::cerr); }

    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            if (!run.error_occurred && (run.repetitions == 1 || run.aggregate_name == "median"))
                Keep(run);
    }

    void PrintTable(std::ostream& out) const {
        out << "| Operation | Size | Time in ms | Growth | Beside | Ratio |\n"
               "|---|---|---|---|---|---|\n";
        for (const auto& [family, operation] : operations_)
            PrintRow(out, operation);
    }

private:
    void Keep(const Run& run) {
        const bool cpu = run.run_name.time_type.empty();
        Operation& operation = operations_[run.family_index];
        operation.name = run.run_name.function_name + (cpu ? "" : " *");
        operation.bound = run.report_label;
        operation.times[run.per_family_instance_index] = {
            run.run_name.args, cpu ? run.GetAdjustedCPUTime() : run.GetAdjustedRealTime()};
    }

    // The bound's time at the size, or its only one; 0 if it was not measured.
    double BoundTime(const std::string& bound, const std::string& size) const {
        for (const auto& [family, operation] : operations_)
            if (operation.name.substr(0, operation.name.find(" *")) == bound)
                for (const auto& [place, time] : operation.times)
                    if (time.first == size || operation.times.size() == 1)
                        return time.second;
        return 0;
    }

    void PrintRow(std::ostream& out, const Operation& operation) const {
        std::vector<std::string> sizes, times, growth, ratios;
        double before = 0;
        for (const auto& [place, time] : operation.times) {
            sizes.push_back(time.first);
            times.push_back(Digits(time.second));
            if (before > 0)
                growth.push_back(Digits(time.second / before));
            before = time.second;
            if (const double bound = BoundTime(operation.bound, time.first); bound > 0)
                ratios.push_back(Digits(time.second / bound));
        }
        out << "| " << operation.name << " | " << Joined(sizes) << " | " << Joined(times) << " | "
            << Joined(growth) << " | " << operation.bound << " | " << Joined(ratios) << " |\n";
    }

    std::map<std::int64_t, Operation> operations_; // in the order in which they are declared
};

void Measure(benchmark::State& state, const Measurement& measurement) {
    state.SetLabel(measurement.bound);
    measurement.run(state);
}

} // namespace

std::string Digits(double value) {
    const int decimals = value < 1 ? 3 : value < 10 ? 2 : value < 100 ? 1 : 0;
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::fixed << std::setprecision(decimals) << value;
    return text.str();
}

void RunAll(int argc, char** argv, const std::vector<Measurement>& measurements) {
    benchmark::SetDefaultTimeUnit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    for (const Measurement& measurement : measurements) {
        auto* declared = benchmark::RegisterBenchmark(measurement.name, Measure, measurement);
        for (const std::int64_t size : measurement.sizes)
            declared->Arg(size);
        if (measurement.wallClock)
            declared->UseRealTime();
    }
    Reporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.PrintTable(std::cout);
}

} // namespace emporium::bench
