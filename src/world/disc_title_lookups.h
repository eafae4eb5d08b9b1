#pragma once
// Which disc first bears a title, answered from a side index kept in step
// with the disc table's writes, so the lookup walks nothing.
#include <cstdint>
#include <span>
#include <string_view>

namespace trovane {

class Game;

// A title as stored in its 50 bytes, without the spaces around it.
std::string_view storedTitle(std::span<const uint8_t> bytes, std::size_t at);

// The first disc, by record number, whose title is `title` (compared as
// stored, without the spaces around it); 0 when none is.
int32_t firstDiscTitled(Game& g, std::string_view title);

// Starts telling the title index of the disc table's writes; the game does it
// once when it is made.
void watchDiscTitles(Game& g);

}  // namespace trovane
