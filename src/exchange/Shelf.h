#pragma once

#include <set>
#include <string>
#include <vector>

// Where deals and lessons are put on the disk, and under which numbers.
namespace exchange {

// The folder of the companion's deals, as the preparation screen finds it. Where no companion is installed, one of our
// own stands in for it: "RVLX" in the program folder, named by the key ProgramFilesX86 of section Platform, so that a
// companion in the first place is found before it.
class CompanionFolder {
public:
    // Failures as of the settings file.
    explicit CompanionFolder(std::string program_folder);

    // It need not be there.
    const std::string& deals() const { return deals_; }
    // When a companion was installed since, takes the key away and tells what is left in our own folder.
    void leave_own_folder();
    // Makes what is missing for the deals to be found.
    void prepare();
    // What the user is told since the last time.
    std::vector<std::string> notes();

private:
    std::string own_deals() const;

    std::string program_folder_;
    std::string settings_;
    std::string deals_;
    bool installed_ = false;
    bool own_is_named_ = false;  // though a companion is installed
    std::vector<std::string> notes_;
};

// Numbers of new deals and lessons: one more than the highest of all "Spel NNN" in the one folder and all
// "QVT_Spel NNN" in the other; past 999 the lowest that is free in both.
class DealNumbers {
public:
    DealNumbers(const std::string& deals, const std::string& lessons);
    // 0 where none is left.
    int next();
    void release(int number) { taken_.erase(number); }  // one that was not used

private:
    std::set<int> taken_;
};

// The number of a folder of that name; 0 for any other name.
int number_of_deal(const std::string& name);
int number_of_lesson(const std::string& name);
std::string deal_name(int number);    // "Spel 012"
std::string lesson_name(int number);  // "QVT_Spel 012"

}  // namespace exchange
