#pragma once
// Making a record: the band's work on an album, the tracklist, the title, the
// studio booking and the studio days until the last track is done.
#include <cstdint>
#include <string>
#include <vector>

#include "world/numbers.h"

namespace trovane {

class Game;

inline constexpr int kMaxTracks = 20;

// frmWorkOnAlbum for the band: refused unless it is the player's and has no album in hand.
std::string checkWorkOnAlbum(Game& g, int16_t band);
void workOnAlbum(Game& g, int16_t band, int budget);
std::string workOnAlbumText(Game& g, int16_t band);
std::string materialBudgetText(Game& g, int16_t band);
// The caption of a budget level: the quality it starts from and its price.
std::string materialBudgetCaption(const Game& g, int budget);

// The songs in hand: the band's songs not yet on a disc, in table order.
std::vector<int32_t> songsInHand(Game& g, int16_t band);
std::string albumProgressText(Game& g, int16_t band);

// cmdFinalise: refused for a track not in hand, none or more than 20 tracks,
// or a band whose album is already recording or recorded.
std::string checkFinaliseAlbum(Game& g, int16_t band, const std::vector<int32_t>& tracks);
// Makes the disc of the marked tracks and holds the rest. Returns the disc.
int16_t finaliseAlbum(Game& g, int16_t band, const std::vector<int32_t>& tracks);
// The current disc's quality and commerciality from its tracks.
void computeDiscRatings(Game& g);

// The album the band has finalised that has no studio yet, or 0.
int16_t discAwaitingStudio(Game& g, int16_t band);

// frmFinaliseAlbum: the text with the assistants' suggestion.
std::string finaliseAlbumText(const std::string& suggestion);
std::string checkDiscTitle(const std::string& title);
void setDiscTitle(Game& g, int16_t disc, const std::string& title);

// frmChooseStudio's text for the disc.
std::string chooseStudioText(Game& g, int16_t disc);
// The current studio's price for a number of days.
Money studioCost(const Game& g, int days);

struct StudioBooking {
    int sessions = 0;
    double firstDay = 0;
    double recordingDue = 0;
    Money cost = 0;
};
// Refused unless the firm is an open studio and the disc has none yet.
std::string checkBookStudio(Game& g, int16_t disc, int16_t studio);
StudioBooking bookStudio(Game& g, int16_t disc, int16_t studio);

// Schedule type 7: one studio day of the entry's band and disc.
void recordingDay(Game& g);
// Books one more studio day when the booked time is over and tracks remain.
void extendBooking(Game& g);

// frmRecordingProgress for the band's disc in the studio.
std::string recordingProgressTitle(Game& g, int16_t disc);
std::string recordingProgressText(Game& g, int16_t disc);

}  // namespace trovane
