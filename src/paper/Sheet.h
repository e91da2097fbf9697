#pragma once

#include <string>
#include <vector>

#include "exchange/BestPlay.h"
#include "exchange/LessonReader.h"

namespace paper {

// A lesson as two or more pages of a rich text: hands, bidding and question; then the play with its texts and the
// answer. The lesson has a complete play; the costly cards are marked.
std::string sheet_of(const exchange::Lesson& lesson, const std::vector<exchange::CostlyCard>& costly);

}  // namespace paper
