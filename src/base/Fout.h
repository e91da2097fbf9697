#pragma once

#include <stdexcept>
#include <string>
#include <system_error>

namespace base {

// The numbers of run-time failures that the system reports. Their Dutch texts stand in one table in Fout.cpp.
enum class FoutNummer {
    InvalidCall = 5,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    Internal = 51,  // any failure that has no number of its own
    FileNotFound = 53,
    DeviceError = 57,
    FileExists = 58,
    DiskFull = 61,
    ReadPastEnd = 62,
    PermissionDenied = 70,
    PathAccess = 75,
    PathNotFound = 76,
    NoSuchResource = 326,
    NoSuchArrayElement = 340,
    InvalidValue = 380,
    NoSuchRowOrColumn = 30009,
};

// A run-time failure: a number and a Dutch text.
class Fout : public std::runtime_error {
public:
    // The text is the one of the table; `detail`, if any, follows it in brackets (a file name, an index).
    explicit Fout(FoutNummer number, const std::string& detail = {});

    int nummer() const { return static_cast<int>(number_); }

    // The failure that stands for an error of the operating system; unknown ones are device errors (57).
    static Fout from(const std::error_code& error, const std::string& detail);

private:
    FoutNummer number_;
};

}  // namespace base
