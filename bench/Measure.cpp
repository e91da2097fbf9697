#include "Measure.h"

#include <algorithm>
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

double at_share(std::vector<double> values, double share) {
    std::ranges::sort(values);
    return values[static_cast<std::size_t>(share * static_cast<double>(values.size() - 1) + 0.5)];
}

}  // namespace

double median(std::vector<double> values) { return at_share(std::move(values), 0.5); }
double percentile99(std::vector<double> values) { return at_share(std::move(values), 0.99); }

Report::Report(const std::string& file) : file_(file) {}
Report::~Report() { std::ofstream(file_) << lines_; }

void Report::add(const std::string& name, double value, const std::string& unit, double aim) {
    char numbers[64];
    std::snprintf(numbers, sizeof numbers, "\t%.2f\t%s\t%g\t", value, unit.c_str(), aim);
    const std::string line = name + numbers + (value <= aim ? "ok" : "over") + "\n";
    std::cout << line << std::flush;
    lines_ += line;
}

void Report::add_times(const std::string& name, const std::vector<double>& milliseconds, double aim) {
    add(name + ", median", median(milliseconds), "ms", aim);
    add(name + ", 99th percentile", percentile99(milliseconds), "ms", aim);
}

}  // namespace bench
