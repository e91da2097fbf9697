#include "Measure.h"

#include <stdlib.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <iostream>

namespace bench {

double milliseconds_since(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double time_of(const std::function<void()>& action) {
    const auto start = Clock::now();
    action();
    return milliseconds_since(start);
}

namespace {

constexpr double kMostLoad = 0.5;  // processes that wanted to run besides this one

double at_share(std::vector<double> values, double share) {
    std::ranges::sort(values);
    return values[static_cast<std::size_t>(share * static_cast<double>(values.size() - 1) + 0.5)];
}

}  // namespace

double median(std::vector<double> values) { return at_share(std::move(values), 0.5); }
double percentile99(std::vector<double> values) { return at_share(std::move(values), 0.99); }

Report::Report(std::string file) : file_(std::move(file)) {
    double load = 0;
    getloadavg(&load, 1);
    judges_ = load < kMostLoad;
    std::cout << "# load of the machine in the last minute: " << load
              << (judges_ ? "" : "; it has other work, so nothing is judged") << std::endl;
}

Report::~Report() {
    std::ofstream(file_) << lines_;
    std::ofstream(file_ + ".samples") << samples_;
}

void Report::add(const std::string& name, double value, const std::string& unit, double aim,
                 const std::vector<double>& samples) {
    std::array<char, 64> numbers{};
    std::snprintf(numbers.data(), numbers.size(), "\t%.2f\t%s\t%g\t", value, unit.c_str(), aim);
    const char* const verdict = !judges_ ? "not judged" : value <= aim ? "ok" : "over";
    const std::string line = name + numbers.data() + verdict + "\n";
    std::cout << line << std::flush;
    lines_ += line;
    samples_ += name;
    for (const double sample : samples)
        samples_ += "\t" + std::to_string(sample);
    samples_ += "\n";
}

void Report::add_median(const std::string& name, const std::vector<double>& values, const std::string& unit,
                        double aim) {
    add(name, median(values), unit, aim, values);
}

void Report::add_99th(const std::string& name, const std::vector<double>& milliseconds, double aim) {
    add(name + ", 99th percentile", percentile99(milliseconds), "ms", aim, milliseconds);
}

void Report::add_times(const std::string& name, const std::vector<double>& milliseconds, double aim_of_median,
                       double aim_of_99th) {
    add_median(name + ", median", milliseconds, "ms", aim_of_median);
    add_99th(name, milliseconds, aim_of_99th);
}

}  // namespace bench
