#pragma once
// Scouting and the shortlist that all labels share. The shortlist functions
// work on the current band and the current label.
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace trovane {

class Game;
struct BandRecord;
struct LabelRecord;

void deliverScoutingReports(Game& g);
// Rewrites the shortlist without its freed rows.
void tidyShortlist(Game& g);

// Schedule type 6: the scouting report on the entry's band.
void bandReport(Game& g);

bool isShortlisted(Game& g);
// Lists the pair once; a second add does nothing.
void shortlistAdd(Game& g);
// Frees the pair's record.
void shortlistRemove(Game& g);
// Frees the rows of the band that no longer matter: every rival's, and the
// player's once the band has signed for the player.
void tidyShortlistForBand(Game& g);
// The labels that list the band, or "None".
std::vector<std::string> fillInterestedList(Game& g);
// Whether the current label would look at the current band, and the listing
// that follows: 0 weighs the band's best market against the label's target
// and lists it one time in two; any other force lists a band that fits.
// The rng draws 0 to 99 once for a band that passes the window.
bool considerForShortlist(Game& g, int force);
// True when bandStyle is labelStyle or descends from it through parentStyle.
// The style buffer is left at the last style whose parent was read.
bool stylesAssociated(Game& g, int labelStyle, int bandStyle);

// The walk of stylesAssociated in the styles' bytes, its buffer untouched:
// the answer, and the style it leaves in the buffer (0: none).
struct StyleWalk {
    bool associated = false;
    int lastRead = 0;
};
StyleWalk walkStyles(const Game& g, int labelStyle, int bandStyle);
using StyleWalker = std::function<StyleWalk(int labelStyle, int bandStyle)>;

// The test of considerForShortlist on a label and a band given, without its
// draw, its listing or its buffers: whether the band qualifies, and the style
// the test leaves in the style buffer (0: none). The styles are walked by
// `walk`, which answers as walkStyles does.
struct ShortlistVerdict {
    bool qualifies = false;
    int styleRead = 0;
};
ShortlistVerdict shortlistVerdict(const Game& g, const LabelRecord& label, const BandRecord& band, int force,
                                  const StyleWalker& walk);

// The current label's A&R reading of the current band: the present value,
// with the erred talent and potential beside it.
struct BandEstimate {
    int present;    // P, 0 to 100
    int talent;     // the members' mean image, as read
    int potential;  // F: the members' mean potential, as read
};
BandEstimate estimateBand(Game& g);

// The player's own acts and those with the player's offer pending have no
// scouting panel: the refusal in the game's words, or "" when it may go on.
std::string checkBandPanel(Game& g, int16_t band);
// lblScout: files the week-long report (type 6) five to seven days ahead and
// returns its date.
double scoutBand(Game& g, int16_t band);
// lblShortlist: lists the band for the player, or takes it off; true when added.
bool toggleShortlist(Game& g, int16_t band);
// The player's shortlisted bands, in the table's order.
std::vector<int16_t> playerShortlist(Game& g);

}  // namespace trovane
