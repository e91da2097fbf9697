#pragma once

#include <string>
#include <vector>

#include "deals/Report.h"
#include "exchange/LessonReader.h"

// All lessons in one file of PBN, and back from there.
namespace deals {

// Writes all lessons of the program folder, and tells of each; how many it wrote. Failures as of any file.
std::size_t save_all(const std::string& program_folder, const std::string& file, Report& report);

// The folder in which such copies are kept, beside that of the lessons; Windows-1252.
std::string copies_folder(const std::string& program_folder);
// Keeps a copy of this day ("2026-11-23"), where there is none yet and the lessons are not those of the copy before;
// of the copies the last thirty stay. Whether it kept one.
bool keep_copy(const std::string& program_folder, const std::string& day, const Progress& progress = {});

// How a lesson of a saved file differs from the one that is there now.
struct Difference {
    std::string name{};  // of the lesson; empty where its number is not known
    bool gone = false;   // it is not there
    bool play = false;   // hands, bidding, contract or play are others
    int texts_lost = 0;  // that are not there any more
    int texts_other = 0;
    std::vector<exchange::DealFile> files{};  // as they were saved
};
// Those that differ; a failure where the file cannot be read, or holds no lesson.
std::vector<Difference> differences(const std::string& file, const std::string& program_folder,
                                    const Progress& progress = {});

// Whether a lesson comes back beside the one that is there now, under a new number, or in its place.
enum class BringBack { Beside, InPlace };
// Brings these back, and tells of each; where it is stopped, those in their places are done as far as they were told,
// and none beside. Before one is replaced, all that is there is kept once more.
void bring_back(const std::vector<Difference>& lessons, const std::string& program_folder, BringBack how,
                Report& report);

}  // namespace deals
