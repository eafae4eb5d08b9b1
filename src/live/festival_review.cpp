// The review of a festival once its last day is over: the verdict, the
// queues, the headliners and their support, and a word on the player's acts.
#include <algorithm>
#include <map>

#include "floor/grammar.h"
#include "floor/news_post.h"
#include "live/festivals.h"
#include "world/game.h"
#include "world/numbers.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr int kHeadliners = 3;

struct ActNight {
    int16_t band = 0;
    int quality = 0;  // the mean of the act's days
};

struct FestivalNights {
    std::vector<ActNight> headliners, support;
    int meanOverall = 0;
    bool soldOut = false;
};

// Each act of the final bill with the mean of its days' quality, the mean of
// the days' overall quality, and whether the crowds filled the sites.
FestivalNights gatherNights(Game& g, const TourRecord& tour) {
    FestivalNights out;
    std::map<int16_t, std::pair<int, int>> sums;  // act -> quality sum, days
    std::vector<int16_t> finalBill;
    double overall = 0, crowd = 0, room = 0;
    int days = 0;
    for (int i = 0; i < std::min<int>(tour.gigCount, 40); ++i) {
        if (!g.gig.readIfPresent(tour.gigs[static_cast<std::size_t>(i)])) continue;
        const GigRecord gig = g.gig.rec;
        finalBill.clear();
        for (std::size_t p = 0; p < gig.bill.size() && gig.bill[p] != 0; ++p) {
            finalBill.push_back(gig.bill[p]);
            sums[gig.bill[p]].first += gig.quality[p];
            sums[gig.bill[p]].second += 1;
        }
        overall += gig.overallQuality;
        crowd += gig.attendance;
        if (g.venue.readIfPresent(gig.venue)) room += g.venue->capacity;
        ++days;
    }
    if (days > 0) out.meanOverall = toInteger(overall / days);
    // A site held to its capacity turns away up to a fiftieth of it.
    out.soldOut = room > 0 && crowd >= room - room / 50;
    for (std::size_t p = 0; p < finalBill.size(); ++p) {
        const auto& [sum, count] = sums[finalBill[p]];
        ActNight n{finalBill[p], toInteger(static_cast<double>(sum) / std::max(count, 1))};
        (p < kHeadliners ? out.headliners : out.support).push_back(n);
    }
    return out;
}

// Adds a piece of the review; pieces that each bring a space between them keep just one.
void append(std::string& text, const std::string& piece) {
    if (!text.empty() && text.back() == ' ' && !piece.empty() && piece.front() == ' ')
        text += piece.substr(1);
    else
        text += piece;
}

int meanOf(const std::vector<ActNight>& acts) {
    double sum = 0;
    for (const ActNight& a : acts) sum += a.quality;
    return acts.empty() ? 0 : toInteger(sum / static_cast<double>(acts.size()));
}

// The best and the worst act of a group; the first of equals.
const ActNight& bestOf(const std::vector<ActNight>& acts) {
    return *std::max_element(acts.begin(), acts.end(),
                             [](const ActNight& a, const ActNight& b) { return a.quality < b.quality; });
}
const ActNight& worstOf(const std::vector<ActNight>& acts) {
    return *std::min_element(acts.begin(), acts.end(),
                             [](const ActNight& a, const ActNight& b) { return a.quality < b.quality; });
}

std::string nameOf(Game& g, int16_t band) {
    return g.band.readIfPresent(band) ? trim(g.band->name.value) : std::string();
}
// "his", "her" or "their" for the act.
std::string theirOf(Game& g, int16_t band) {
    if (!g.band.readIfPresent(band)) return "their";
    return grammarWord(g, 5, false);
}

std::string headlinersText(Game& g, const std::vector<ActNight>& acts) {
    if (acts.empty()) return {};
    const int mean = festivalVerdict(meanOf(acts));
    const std::string best = nameOf(g, bestOf(acts).band);
    const std::string worst = nameOf(g, worstOf(acts).band);
    if (acts.size() == 1) {
        static const char* kAlone[] = {" topped the bill but never looked like living up to it. ",
                                       " topped the bill and did a solid, if unspectacular, job of it. ",
                                       " topped the bill and fully deserved to. ",
                                       " topped the bill with a performance that will be talked about for years. "};
        return best + kAlone[mean];
    }
    switch (mean) {
    case 3:
        return "Each of the headlining acts were breathtaking, however a special mention must go to " + best +
               " who put in what must be regarded as one of the best performances of " + theirOf(g, bestOf(acts).band) +
               " career. ";
    case 2:
        return "The headliners were in fine form throughout, with " + best + " stealing the show, though " + worst +
               " were not far behind. ";
    case 1:
        return "The headliners were a bit of a mixed bag really, with a poor performance from " + worst +
               " beng made up for by a strong performance from " + best + ". ";
    default:
        return "The headliners were a sore disappointment, " + worst + " in particular looking as though " +
               grammarWord(g, 1, false) + " would rather be anywhere else, and even " + best +
               " could do little to lift the mood. ";
    }
}

std::string supportText(Game& g, const std::vector<ActNight>& acts, int headlinerVerdict) {
    if (acts.empty()) return {};
    const int verdict = festivalVerdict(meanOf(acts));
    const std::string best = nameOf(g, bestOf(acts).band);
    const std::string worst = nameOf(g, worstOf(acts).band);
    if (verdict >= 2 && headlinerVerdict == 0)
        return " Fortunately the support acts fared a lot better than the headliners, with " + best +
               " the pick of them. ";
    if (verdict >= 2) return " The headliners were ably backed up by a raft of quality support, notably " + best + ". ";
    if (verdict == 1)
        return "Their support, in particular " + best + ", kept the crowds entertained between the big names. ";
    return "Their support, in particular " + worst + ", did little to hold the attention of the crowd. ";
}

}  // namespace

int festivalVerdict(int meanQuality) {
    if (meanQuality <= 60) return 0;
    if (meanQuality <= 80) return 1;
    if (meanQuality <= 90) return 2;
    return 3;
}

void writeFestivalReview(Game& g) {
    const BandRecord band = g.band.rec;
    const TourRecord tour = g.tour.rec;
    const FestivalRecord festival = g.festival.rec;
    const GigRecord gigNow = g.gig.rec;
    const std::string name = trim(festival.festivalName.value);
    const FestivalNights nights = gatherNights(g, tour);
    const int verdict = festivalVerdict(nights.meanOverall);

    std::string title, text;
    switch (verdict) {
    case 0:
        title = name + " fails to live up to expectations.";
        text = name +
               " is over for another year, and that is no bad thing following a festival which let its paying "
               "customers down in almost every way. ";
        break;
    case 1:
        title = "Solid performance from " + name + " organisers.";
        text = "Although this year's " + name +
               " probably won't live long in the memory it was nonetheless aa well organised and presented "
               "festival leaving all but the very hardest to please glad that they came. ";
        break;
    case 2:
        title = name + " proves one of the highlights of the year.";
        text = "Those who attended this year's " + name +
               " will be extremely glad they did as they had the opportunity to witness what turned out to be one "
               "of the finest festivals on this year's calendar. ";
        break;
    default:
        title =
            g.rng.draw() < 0.5f ? name + ", 'Great Success' say organisers." : name + ", festival of the year so far?";
        text =
            "One of the success stories of the year, in fact of any year. Today an army of fans will be waking "
            "up to find that, thanks to this year's " +
            name + ", they have memories that will last a lifetime. ";
        break;
    }
    if (nights.soldOut) {
        text +=
            "Doors 'opened' early, though open is a loose term as many festival goers had to queue for up to 6 "
            "hours to actually get in, ";
        text += verdict >= 1 ? "but few of them left thinking it wasn't worth the wait. "
                             : "and few of them left thinking it had been worth the wait. ";
    }
    append(text, headlinersText(g, nights.headliners));
    append(text, supportText(g, nights.support, festivalVerdict(meanOf(nights.headliners))));

    for (const auto* group : {&nights.headliners, &nights.support}) {
        for (const ActNight& act : *group) {
            if (!g.band.readIfPresent(act.band)) continue;
            if (g.player.playerLabel < 1 || g.band->label != g.player.playerLabel) continue;
            const std::string actName = trim(g.band->name.value);
            if (act.quality > 80)
                append(text, " " + actName + " will be delighted with " + grammarWord(g, 5, false) +
                                 " performance, which won over a good many new fans. ");
            else if (act.quality <= 60)
                append(text, " " + actName + " will want to forget " + grammarWord(g, 5, false) +
                                 " performance as quickly as possible. ");
        }
    }
    while (!text.empty() && text.back() == ' ') text.pop_back();
    postNews(g, {.date = g.gameDate, .title = title, .text = text});
    g.band.rec = band;
    g.tour.rec = tour;
    g.festival.rec = festival;
    g.gig.rec = gigNow;
}

}  // namespace trovane
