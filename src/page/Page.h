#pragma once

#include <functional>
#include <string>
#include <vector>

#include "exchange/LessonReader.h"

// Lessons as a web page that needs nothing beside it.
namespace page {

// Why a lesson cannot be shown: what is wrong with its record, or that it has no whole play; empty if it can.
std::string refusal(const exchange::Lesson& lesson);

// What the lessons are called together: a single one by its own title.
std::string title_of(const std::vector<exchange::Lesson>& lessons);

// The page, UTF-8: of one lesson, or of several with a list to choose from. None of them is refused. In front of each
// lesson `between` is told how many are done; what it throws ends the work.
std::string html(const std::vector<exchange::Lesson>& lessons,
                 const std::function<void(std::size_t done)>& between = {});

}  // namespace page
