#pragma once

#include <optional>
#include <string>
#include <vector>

#include "exchange/DealFiles.h"
#include "exchange/OwnPart.h"
#include "exchange/PbnGame.h"

// The way of a lesson's own bytes through a PBN file: tags named "Zandolin" and the file, with the changes in
// hexadecimal digits behind them.
namespace exchange {

// How the files of a lesson differ from those that are made of its board; none may be made at all.
std::vector<OwnPart> own_parts(const std::vector<DealFile>& made, const std::vector<DealFile>& files);

// Changes made files into those of the lesson. A part that does not belong to its file is left out, and told.
void put_back(const std::vector<OwnPart>& parts, std::vector<DealFile>& made, std::vector<Remark>& notes);

// Whether it holds where nothing is made of the board.
bool stands_alone(const OwnPart& part);

// The tag and its lines, which end in CR LF.
std::string text_of(const OwnPart& part);
// From a tag of a game; none if it is no such tag. One that cannot be read is told.
std::optional<OwnPart> own_part_of(const PbnTag& tag, std::vector<Remark>& notes);

}  // namespace exchange
