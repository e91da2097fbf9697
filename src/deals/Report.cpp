#include "deals/Report.h"

#include <iostream>

namespace deals {

void PrintedReport::note(const std::string& text) { std::cerr << "note: " << text << "\n"; }
void PrintedReport::made(const std::string& name) { std::cout << name << std::endl; }
void PrintedReport::refused(const std::string& text) { std::cout << "refused: " << text << "\n"; }

}  // namespace deals
