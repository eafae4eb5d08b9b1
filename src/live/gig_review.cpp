#include "live/gig_review.h"

#include <algorithm>

#include "floor/formats.h"
#include "floor/grammar.h"
#include "floor/news_post.h"
#include "live/gigs.h"
#include "talent/reputation.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr int kFanMeetingReason = 20;

std::string number(double v) { return formatNumber(v, "###,###,###,###"); }

// The cells of the dance paragraph: by the band of dancing[0], then whether the
// review is so far kind, then the two variants.
constexpr const char* kDance[4][2][2] = {
    {{"The pathetic attempt at a dance routine did little to improve the situation, instead serving only to make "
      "a poor gig even worse. ",
      "Nor did the dancing help matters, the routine looking under-rehearsed and clumsy from start to finish. "},
     {"If the performance can be criticised then the less than inspiring dance routine is the place to start, "
      "looking as though it had been thrown together that afternoon. ",
      "The one real let-down of the night was the dancing, which was ragged and out of step with the music. "}},
    {{"The dance routine was passable at best and did nothing to lift a flat evening. ",
      "A rather ordinary dance routine did little to distract from the shortcomings elsewhere. "},
     {"The dance routine was competent if unspectacular, though it did little to detract from the show. ",
      "If the performance can be criticised then the less than inspiring dance routine, adequate but never "
      "more than that, would be it. "}},
    {{"A well drilled dance routine was one of the few bright spots of the evening. ",
      "The dancing at least was slick and well rehearsed, something to salvage from the night. "},
     {"A fantastic dance routine served to compliment the show perfectly, the crowd clearly loving every move. ",
      "The dance routine was slick and confident, adding a real sense of spectacle to the show. "}},
    {{"The dance routine was nothing short of breathtaking, a world away from the rest of the night. ",
      "Whatever else went wrong, the dancing was superb, as good as anything seen on a stage this year. "},
     {"A fantastic dance routine served to compliment the show perfectly, as tight and inventive a routine as "
      "anyone present will have seen. ",
      "The dance routine was simply stunning, the audience left open-mouthed by every move. "}},
};

std::string attendanceParagraph(Game& g, int crowd, int n1, const std::string& band, const std::string& venue) {
    bool second = n1 > 50;
    const GigRecord& gig = g.gig.rec;
    switch (crowd) {
    case 0:
        if (!second) return venue + " was looking sparse as " + band + " came to town last night. ";
        return venue + " looked like a ghost town last night as " + band + " managed to sell only a fraction of the " +
               number(g.venue->capacity) + " tickets on sale. ";
    case 1:
        if (!second)
            return "Although some way from a sell-out a reasonable crowd gathered for " + band + "'s gig last night.";
        return "Although " + band + " probably " + grammarWord(g, 3, false) + "n't up to playing venues this size " +
               grammarWord(g, 1, false) +
               " will still be pleased with what was at least a reasonable turnout last night.";
    case 2:
        if (!second)
            return "A healthy " + number(gig.attendance) + " people made the trip to " + venue + " to see " + band +
                   " last night.";
        return band + " sold approximately 75% of tickets for " + grammarWord(g, 5, false) +
               " gig, ensuring a fantsatic atmosphere at " + venue + " last night.";
    default:
        if (!second) return "A capacity crowd packed into " + venue + " to see " + band + " last night.";
        return venue + " was a complete sell-out as " + band + " came to town last night.";
    }
}

std::string qualityParagraph(int quality, bool goodCrowd, int n1, const std::string& band) {
    bool second = n1 > 50;
    switch (quality) {
    case 3:
        return std::string(goodCrowd ? " Perhaps spurred on by the excellent turnout "
                                     : " It is a real shame that more tickets weren't sold as ") +
               band + " played " +
               (second ? "a completely flawless performance leaving the audience desperate for more. "
                       : "out one of the best live performances in recent memory. ");
    case 2:
        return std::string(goodCrowd ? " It was soon clear why there were so few unsold tickets for the gig as "
                                     : " Despite the poor turnout however ") +
               band +
               (second ? " turned in a performance that few who saw it will forget in a hurry. "
                       : " delivered a polished and thoroughly entertaining set. ");
    case 1:
        if (goodCrowd)
            return " The atmosphere before " + band +
                   (second ? " took to the stage was electric, but the set itself never quite caught fire. "
                           : " came on was one of real anticipation, only for an average performance to follow. ");
        return " Whilst those who did make the trip probably won't be disappointed they did this in spite of, "
               "rather than because of, " +
               band + (second ? "'s rather ordinary set. " : "'s competent but forgettable performance. ");
    default:
        if (goodCrowd)
            return " The atmosphere in the audience before the gig was soon extinguished however as " + band +
                   (second ? " stumbled through a lacklustre set. " : " struggled to hold the crowd's attention. ");
        return " The few who did make the trip are probably wishing they had stayed at home after " + band +
               (second ? " stumbled through a lacklustre set. " : " struggled through a disappointing performance. ");
    }
}

std::string showParagraph(int level, bool goodShow, bool kindSoFar, int n1) {
    bool second = n1 > 50;
    if (level >= 3) {
        std::string opening = goodShow ? "Perhaps a slight criticism of the performance would be "
                                       : "The show wasn't done any favours by ";
        return opening + (second ? "the less than impressive lighting and special effects, definitely an area which "
                                   "could've benefitted from a more generous budget. "
                                 : "the sub-standard sound and lighting equipment used, which was pushed way beyond "
                                   "its limits. ");
    }
    if (level >= 1) {
        std::string opening = goodShow ? "The on-stage performance was complimented well by "
                                       : "One positive point from the gig at least was ";
        return opening + "the very professional sound and lighting equipment used in the show. ";
    }
    std::string opening =
        kindSoFar ? "Another major highlight from the gig was " : "One positive point from the gig at least was ";
    return opening +
           "the amazing sound equipment, lighting and special effects used. The special effects were especially "
           "impressive, thoroughly wowing the audience. ";
}

std::string meetingLeadIn(bool criticised, bool kindSoFar, int n1) {
    if (criticised) return "This minor criticism was more than made up for though when, ";
    if (!kindSoFar) return "The evening did at least end on a brighter note when, ";
    return n1 > 50 ? "To round off a fine evening, " : "Capping a memorable night, ";
}

}  // namespace

int reviewQualityBand(int quality) {
    if (quality <= 60) return 0;
    if (quality <= 80) return 1;
    if (quality <= 94) return 2;
    return 3;
}

int reviewCrowdBand(int percent) {
    if (percent < 34) return 0;
    if (percent <= 70) return 1;
    if (percent <= 94) return 2;
    return 3;
}

void writeGigReview(Game& g) {
    const GigRecord gig = g.gig.rec;
    const BandRecord headliner = g.band.rec;
    const std::string band = trim(headliner.name.value);
    const std::string venue = trim(g.venue->name.value);
    const std::string city = trim(g.city->name.value);
    g.style.readIfPresent(headliner.style);
    const StyleRecord style = g.style.rec;
    const int market = venueMarket(g);

    int quality = reviewQualityBand(gig.overallQuality);
    const bool goodShow = quality >= 2;
    std::string text;
    switch (quality) {
    case 0: text = band + " fail" + grammarWord(g, 2, false) + " to impress."; break;
    case 1: text = band + " put" + grammarWord(g, 2, false) + " on a mediocre show in " + city; break;
    case 2: text = band + " shine" + grammarWord(g, 2, false) + " in " + city; break;
    default: text = band + " blow the audience away in " + city; break;
    }
    text += "\n\n";

    int capacity = std::max(g.venue->capacity, 1);
    int percent = static_cast<int>(intFloor(static_cast<double>(gig.attendance) * 100 / capacity));
    int crowd = reviewCrowdBand(percent);
    const bool goodCrowd = crowd >= 2;
    text += attendanceParagraph(g, crowd, g.rng.between(0, 99), band, venue);
    text += qualityParagraph(quality, goodCrowd, g.rng.between(0, 99), band);
    bool kindSoFar = goodShow;

    int n1 = g.rng.between(0, 99);
    if (style.dancingWeight >= 20) {
        int dance = reviewQualityBand(gig.dancing[0]);
        text += std::string("\n\n") + kDance[dance][kindSoFar ? 1 : 0][n1 > 50 ? 1 : 0];
        kindSoFar = kindSoFar && dance >= 2;
    }
    bool criticised = false;
    n1 = g.rng.between(0, 99);
    if (style.contentWeight >= 20) {
        text += "\n\n" + showParagraph(g.tour->contentLevel, goodShow, kindSoFar, n1);
        criticised = g.tour->contentLevel >= 3;
    }

    bool met = false;
    int supports = std::min<int>(g.tour->supportCount, 39);
    for (int p = 1; p <= supports && gig.bill[static_cast<std::size_t>(p)] != 0; ++p) {
        g.band.read(gig.bill[static_cast<std::size_t>(p)]);
        if (g.rng.between(0, 99) <= 90 || g.band->charisma <= 80) continue;
        changeHype(g, 20, market, kFanMeetingReason);
        g.band.read(gig.bill[static_cast<std::size_t>(p)]);
        text += "\n\n" + meetingLeadIn(criticised, kindSoFar, g.rng.between(0, 99)) + "following " +
                grammarWord(g, 5, false) + " earlier support performance " + trim(g.band->name.value) +
                " joined the audience to see " + band +
                " play, also taking time out to sign autographs and pose for photos with members of the crowd.";
        met = true;
    }
    g.band.rec = headliner;
    if (!met && g.rng.between(0, 99) > 90 && headliner.charisma > 80)
        text += "\n\nIt is worth mentioning that at the end of the gig " + band +
                " hung around for some time chatting to memebers of the audience, signing autographs and posing for "
                "photos with a crowd who were clearly delighted by " +
                band + "'s gesture.";

    postNews(g, {.date = g.gameDate, .title = band, .text = text});
    g.band.read(headliner.id);
    g.gig.rec = gig;
}

}  // namespace trovane
