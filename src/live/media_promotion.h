#pragma once
// Appearances in newspapers, magazines, radio and TV: which outlets want an
// act, what an appearance is worth, the days they come out, and the booking.
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace trovane {

class Game;
struct MediaRecord;

// Kinds of appearance; radio and TV take the first three, the press the last two.
enum MediaKind : uint8_t { interviewKind = 0, liveKind = 1, bothKind = 2, smallArticle = 3, largeArticle = 4 };

// "Interview", "Live Performance", "Interview & Live Performance", "Small
// Article", "Large Article"; and the outlet's type, "Newspaper" to "TV Show".
std::string mediaKindName(int kind);
std::string mediaTypeName(int mediaType);

// The market (0 UK, 1 US, 2 Europe, 3 Oceania, 4 Other) of the outlet in the
// media buffer: a global one is Other, else its country's. Reads the country.
int mediaTerritory(Game& g);
// The current band's reputation as the outlet in the buffer reads it: its
// worldwide rating for a global outlet, else the territory's.
int mediaReputation(Game& g);
// Whether the outlet in the buffer would have the current band at all: its
// controversy in range and its style the outlet's or descended from it.
bool mediaOpenTo(Game& g);

// How the current band comes across live on the outlet in the buffer (TV by
// the style's singing and dancing, radio by singing), and in an interview;
// both with the night's spread and the energy rule, 0 to 100.
int liveRating(Game& g);
int interviewRating(Game& g);

// The effect of an appearance of `skill` worth `kindValue` to a band of
// reputation `rep` (below 1 counts as 1), held to -20..20.
float appearanceEffect(float skill, float kindValue, float rep);

struct MediaOffer {
    int16_t media = 0;
    int value = 0;  // round(10 x effect)
    uint8_t kind = 0;
};
// The best kind the outlet in the buffer offers the current band, value 0 when none.
MediaOffer bestMediaOffer(Game& g);
// Every outlet of the territory that wants the current band, positive values
// only, best first (ties in record order).
std::vector<MediaOffer> findMediaOffers(Game& g, int territory);

// Whether the outlet comes out on the date (an annual one: on its day of any year).
bool isIssueDay(const MediaRecord& m, double date);
// The outlet's issue days after `today` up to `today` + `days` on which the
// current band is free; an annual issue only within six weeks.
std::vector<double> freeIssueDays(Game& g, const MediaRecord& m, double today, int days);

// The player's booking, in two halves: the refusal in the game's words (empty
// when it may go ahead), then the booking; both on the current band.
std::string checkAppearance(Game& g, int16_t media, int kind, double date);
// Files a type 17 for the current band (and its label) in the outlet; returns the entry.
int32_t bookAppearance(Game& g, int16_t media, double date, int kind);

// The question before a booking: "You have selected " + band + " to appear in
// a large article in " + outlet + " on " + date + " confirm?" and so on by kind.
std::string mediaConfirmText(const std::string& band, const std::string& outlet, int kind, double date);

// Schedule type 17: the entry's band appears in the entry's outlet.
void performAppearance(Game& g);

// The review the player reads after an appearance rated `rating` by the band
// in the buffer in the outlet in the buffer: {title, text}.
std::pair<std::string, std::string> appearanceReview(Game& g, int kind, int rating, double date);

}  // namespace trovane
