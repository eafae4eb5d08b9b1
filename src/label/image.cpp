#include "label/image.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

#include "floor/news_post.h"
#include "label/departments.h"
#include "label/scouting_text.h"
#include "schedule/schedule.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

std::string fullName(const ArtistRecord& a) { return trim(a.forename.value) + " " + trim(a.surname.value); }

std::string lookName(Game& g, int16_t look) {
    if (look < 1 || look >= g.look.recordCount()) return "";
    g.look.read(look);
    return trim(g.look->name.value);
}

struct LookReading {
    int16_t candidate = 0;
    int value = 0;  // through Marketing's error
};

// The looks and each style's liking for them: the first asslook row of a look
// and a style gives its bonus. Kept on the game and read again only when the
// tables change (see LookRows).
using LookTable = LookRows;

uint32_t bonusKey(int look, int style) { return (static_cast<uint32_t>(look) << 8) | static_cast<uint8_t>(style); }

const LookTable& readLookTable(Game& g) {
    LookTable& t = g.lookRows;
    if (t.generation == g.look.generation() && t.records == g.look.recordCount() &&
        t.assGeneration == g.asslook.generation() && t.assRecords == g.asslook.recordCount())
        return t;
    t.looks.clear();
    t.bonus.clear();
    LookRecord look{};
    for (int32_t n = 1; n < g.look.recordCount(); ++n) {
        decodeRecord(g.look.bytesOf(n).data(), look);
        t.looks.push_back(look);
    }
    AssRecord link{};
    for (int32_t n = 1; n < g.asslook.recordCount(); ++n) {
        decodeRecord(g.asslook.bytesOf(n).data(), link);
        t.bonus.try_emplace(bonusKey(static_cast<uint16_t>(link.a), link.b), link.weight);
    }
    t.generation = g.look.generation();
    t.records = g.look.recordCount();
    t.assGeneration = g.asslook.generation();
    t.assRecords = g.asslook.recordCount();
    return t;
}

// 50 less the distance of each attribute outside the look's bounds, plus the bonus.
int rateAgainst(const ArtistRecord& a, const LookRecord& look, int bonus) {
    // Attributes in the order of the look's bounds.
    const int values[8] = {a.charisma, a.controversy, a.flair, a.dancing, a.live, a.attitude, a.angst, a.visual};
    int penalty = 0;
    for (std::size_t i = 0; i < 8; ++i) {
        int low = look.bounds[2 * i], high = look.bounds[2 * i + 1];
        if (values[i] < low)
            penalty += low - values[i];
        else if (values[i] > high)
            penalty += values[i] - high;
    }
    return std::clamp(50 - penalty + bonus, 0, 100);
}

int16_t bestLookIn(Game& g, const LookTable& t, int* rated = nullptr) {
    const ArtistRecord& a = g.artist.rec;
    const uint8_t sex = a.male != 0 ? 1 : 2;
    int16_t best = 0;
    int bestRating = -1;
    for (const LookRecord& look : t.looks) {
        if (look.sex != 0 && look.sex != sex) continue;
        const auto found = t.bonus.find(bonusKey(static_cast<uint16_t>(look.id), a.style));
        const int rating = rateAgainst(a, look, found == t.bonus.end() ? 0 : found->second);
        if (rating > bestRating) {
            bestRating = rating;
            best = look.id;
        }
    }
    if (rated != nullptr) *rated = bestRating;
    if (best != 0)
        g.look.read(best);
    else if (!t.looks.empty())
        g.look.rec = t.looks.back();
    return best;
}

// The best look for the artist in the buffer and Marketing's reading of it,
// by the current label's department.
LookReading readLook(Game& g, const LookTable& t) {
    LookReading r;
    int rating = 0;
    r.candidate = bestLookIn(g, t, &rating);
    if (r.candidate == 0) return r;
    r.value = applyDepartmentError(g, rating, marketing);
    return r;
}

}  // namespace

int16_t bestLook(Game& g) {
    const LookTable& table = readLookTable(g);
    return bestLookIn(g, table);
}

void deliverMarketingReports(Game& g) {
    const LookTable& looks = readLookTable(g);
    // The acts of each label that have not retired, in table order, gathered in one walk.
    std::vector<std::vector<BandRecord>> actsOf(static_cast<std::size_t>(std::max(1, g.label.recordCount())));
    for (int32_t b = 1; b < g.band.recordCount(); ++b) {
        g.band.read(b);
        const int16_t owner = g.band->label;
        if (owner < 1 || owner >= g.label.recordCount() || g.band->retired != 0) continue;
        actsOf[static_cast<std::size_t>(owner)].push_back(g.band.rec);
    }
    for (int32_t l = 1; l < g.label.recordCount(); ++l) {
        g.label.read(l);
        const bool player = l == g.player.playerLabel;
        const int limit = toInteger(g.label->department[marketing].rating / 10.0);
        int complaints = 0;
        std::string lines;
        bool done = false;
        for (std::size_t b = 0; b < actsOf[static_cast<std::size_t>(l)].size() && !done; ++b) {
            const BandRecord& band = actsOf[static_cast<std::size_t>(l)][b];
            const int members = std::min<int>(band.memberCount, static_cast<int>(band.members.size()));
            for (int m = 0; m < members && !done; ++m) {
                const int16_t who = band.members[static_cast<std::size_t>(m)];
                if (who < 1 || who >= g.artist.recordCount()) continue;
                g.artist.read(who);
                g.label.read(l);
                const LookReading r = readLook(g, looks);
                if (r.candidate != 0 && r.value > g.artist->imageRating) {
                    ++complaints;
                    if (!player) {
                        g.artist->look = narrow<uint8_t>(r.candidate);
                        g.artist->imageRating = narrow<uint8_t>(r.value);
                        g.artist.write();
                    } else {
                        const ArtistRecord a = g.artist.rec;
                        lines += "- " + fullName(a) + " " + " (" + lookName(g, a.look) + ")\r\n";
                    }
                }
                // The count is tested after each member: a limit of 0 still looks at one.
                done = complaints >= limit;
            }
        }
        if (player && !lines.empty())
            postNews(g, {.date = g.gameDate + 1,
                         .title = "Marketing team file their monthly report",
                         .text = "In their monthly report your marketing team have expressed concern about the "
                                 "following artist(s) images :- " +
                                 lines +
                                 "They indicate they would like to be given the time to analyse each of the above "
                                 "artist's images in more depth in the near future to maximise their sales "
                                 "potential."});
    }
}

// The yes of "Confirm Image Analysis": Marketing look into the artist's image in a week.
std::string checkImageAnalysis(Game& g, int16_t artist) {
    if (artist < 1 || artist >= g.artist.recordCount()) return "There is no such artist.";
    g.artist.read(artist);
    if (g.artist->band < 1 || g.artist->band >= g.band.recordCount()) return "That artist is not signed to your label.";
    g.band.read(g.artist->band);
    if (g.player.playerLabel == 0 || g.band->label != g.player.playerLabel)
        return "That artist is not signed to your label.";
    return {};
}

std::string imageAnalysisQuestion(Game& g, int16_t artist) {
    g.artist.read(artist);
    const ArtistRecord a = g.artist.rec;
    std::string band;
    int members = 0;
    if (a.band > 0 && a.band < g.band.recordCount()) {
        g.band.read(a.band);
        band = trim(g.band->name.value);
        members = g.band->memberCount;
    }
    std::string who = fullName(a);
    if (members > 1 && a.job > 0 && a.job < g.job.recordCount()) {
        g.job.read(a.job);
        const std::string female = trim(g.job->titleFemale.value);
        const std::string job = a.male != 0 || female.empty() ? trim(g.job->title.value) : female;
        who = job + " " + who;
    }
    return "Are you sure you want your marketing department to analyse " + band + " " + who + "'s image?";
}

int32_t requestImageAnalysis(Game& g, int16_t artist) {
    ScheduleRecord r{};
    r.type = 9;
    r.date = g.gameDate + 7;
    r.label = g.player.playerLabel;
    r.artist = artist;
    return addSchedule(g, r);
}

uint8_t rateLook(Game& g) {
    const ArtistRecord& a = g.artist.rec;
    const LookRecord& look = g.look.rec;
    int bonus = 0;
    for (int32_t n = 1; n != g.asslook.recordCount(); ++n) {
        g.asslook.read(n);
        if (g.asslook->a == look.id && g.asslook->b == a.style) {
            bonus = g.asslook->weight;
            break;
        }
    }
    return static_cast<uint8_t>(rateAgainst(a, look, bonus));
}

void imageReport(Game& g) {
    ScheduleRecord entry = g.schedule.rec;
    if (entry.artist < 1 || entry.artist >= g.artist.recordCount() || entry.label < 1 ||
        entry.label >= g.label.recordCount())
        return;
    g.label.read(entry.label);
    g.artist.read(entry.artist);
    const LookReading r = readLook(g, readLookTable(g));
    g.artist.read(entry.artist);
    const ArtistRecord a = g.artist.rec;
    const bool change = r.candidate != 0 && r.candidate != a.look && r.value > a.imageRating;
    const std::string name = fullName(a);
    const bool male = a.male != 0;
    const std::string his = male ? "his" : "her";
    std::string text =
        "Your Marketing Department have presented you with a report outlining their findings during "
        "their analysis of " +
        name + "'s image. In the report they indicate that ";
    if (!change) {
        text += imageVerdict(g);
    } else {
        const std::string old = lookName(g, a.look), now = lookName(g, r.candidate);
        if (a.imageRating <= 50)
            text +=
                "they are not impressed with the artist's current image and are pleased to inform you they "
                "believe significant improvements can be made. They suggest you request " +
                name + " changes " + his + " image from " + old + " to " + now + ".";
        else if (a.imageRating <= 80)
            text += "while there is no problem with " + name +
                    "'s image improvements can still be made, they suggest you request the artist changes " + his +
                    " image from " + old + " to " + now + ".";
        else
            text += "although they are pleased with the way " + name +
                    "'s image is being received by the public improvements can still be made, they suggest a change "
                    "from " +
                    old + " to " + now + " would serve to further improve the artist's image.";
        text += " Change " + name + "'s image?";
        g.schedule.read(entry.id);
        g.schedule->look = r.candidate;
        g.schedule.write();
    }
    postNews(g, {.date = g.gameDate + 1,
                 .title = "Marketing Department present " + name + " image report",
                 .text = text,
                 .kind = change ? kNewsYesNo : kNewsOk,
                 .scheduleLink = change ? entry.id : 0,
                 .mustReply = change});
}

void changeLook(Game& g) {
    g.artist->look = narrow<uint8_t>(g.look->id);
    g.artist->imageRating = rateLook(g);
    g.artist.write();
}

}  // namespace trovane
