#pragma once
// Discs: the starting world's discs, and the single drawn from an album.
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "production/recording.h"

namespace trovane {

class Game;

// A disc of the starting world, already released, brought to a consistent state.
void setUpReleasedDisc(Game& g);
// The discs of the current band, signed in the starting world, made ready with it.
void setUpBandDiscs(Game& g);

// The album's tracks that can still lead a single: none of their five
// singleDisc numbers is set.
std::vector<int32_t> freeSingleTracks(Game& g, int16_t album);
// The two other tracks of the album of lowest mean quality and commerciality.
std::array<int32_t, 2> defaultBSides(Game& g, int16_t album, int32_t lead);
// A single of the player's album: the check and the action. The new disc
// takes the next record number, copies the album, and starts with no sales,
// stock, chart fields, dates or income; its quality is its lead song's.
std::string makeSingleRefusal(Game& g, int16_t album, int32_t lead, const std::array<int32_t, 2>& bSides);
int16_t makeSingle(Game& g, int16_t album, int32_t lead, const std::array<int32_t, 2>& bSides);

// frmChooseBSides' Confirm: the single made and booked into the studio, or the
// refusal of either, in which case nothing is made.
std::string recordSingleRefusal(Game& g, int16_t album, int32_t lead, const std::array<int32_t, 2>& bSides,
                                int16_t studio);
struct RecordedSingle {
    int16_t disc = 0;
    StudioBooking booking;
};
RecordedSingle recordSingle(Game& g, int16_t album, int32_t lead, const std::array<int32_t, 2>& bSides, int16_t studio);

}  // namespace trovane
