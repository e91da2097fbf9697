#pragma once

#include <QPageSize>
#include <QPagedPaintDevice>
#include <functional>
#include <string>
#include <vector>

#include "exchange/LessonReader.h"

// Lessons as hand-outs.
namespace paper {

struct Options {
    bool mark_costly = false;  // cards that gave tricks away, which takes up to a second a lesson
    // Told in front of each lesson how many are done; what it throws ends the work.
    std::function<void(std::size_t done)> between{};
};

// Prints them one after the other, each from a new page on. None of them is refused by page::refusal. The device has no
// margins of its own: the sheets keep two centimetres free. "the printer failed" as soon as the device takes no page.
void print(const std::vector<exchange::Lesson>& lessons, QPagedPaintDevice& device, const Options& options);

// The same as the bytes of a PDF file.
std::string pdf(const std::vector<exchange::Lesson>& lessons, const Options& options,
                const QPageSize& size = QPageSize(QPageSize::A4));

// What `zandolin_deals_desktop paper FILE.pdf LESSON-FOLDER... [--costly]` does, with its words from "paper" on: writes
// the file as a whole and opens no window. The exit status: 0; 2 where nothing was written, with the reason on standard
// error.
int run(int argc, char** argv);

}  // namespace paper
