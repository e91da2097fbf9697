#pragma once

#include <QPagedPaintDevice>
#include <vector>

#include "exchange/LessonReader.h"

// Lessons as hand-outs.
namespace paper {

struct Options {
    bool mark_costly = false;  // cards that gave tricks away, which takes up to a second a lesson
};

// Prints them one after the other, each from a new page on. None of them is refused by page::refusal. The device has no
// margins of its own: the sheets keep two centimetres free.
void print(const std::vector<exchange::Lesson>& lessons, QPagedPaintDevice& device, const Options& options);

// What `zandolin_deals_desktop paper FILE.pdf LESSON-FOLDER... [--costly]` does, with its words from "paper" on: writes
// the file as a whole and opens no window. The exit status: 0; 2 where nothing was written, with the reason on standard
// error.
int run(int argc, char** argv);

}  // namespace paper
