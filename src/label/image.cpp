#include "label/image.h"

#include <algorithm>

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

// The best look for the artist in the buffer and Marketing's reading of it,
// by the current label's department.
LookReading readLook(Game& g) {
    LookReading r;
    r.candidate = bestLook(g);
    if (r.candidate == 0) return r;
    g.look.read(r.candidate);
    r.value = applyDepartmentError(g, rateLook(g), marketing);
    return r;
}

}  // namespace

int16_t bestLook(Game& g) {
    const uint8_t sex = g.artist->male != 0 ? 1 : 2;
    int16_t best = 0;
    int bestRating = -1;
    for (int32_t n = 1; n < g.look.recordCount(); ++n) {
        g.look.read(n);
        if (g.look->sex != 0 && g.look->sex != sex) continue;
        const int rating = rateLook(g);
        if (rating > bestRating) {
            bestRating = rating;
            best = g.look->id;
        }
    }
    if (best != 0) g.look.read(best);
    return best;
}

void deliverMarketingReports(Game& g) {
    for (int32_t l = 1; l < g.label.recordCount(); ++l) {
        g.label.read(l);
        const bool player = l == g.player.playerLabel;
        const int limit = toInteger(g.label->department[marketing].rating / 10.0);
        int complaints = 0;
        std::string lines;
        bool done = false;
        for (int32_t b = 1; b < g.band.recordCount() && !done; ++b) {
            g.band.read(b);
            if (g.band->label != l || g.band->retired != 0) continue;
            const BandRecord band = g.band.rec;
            const int members = std::min<int>(band.memberCount, static_cast<int>(band.members.size()));
            for (int m = 0; m < members && !done; ++m) {
                const int16_t who = band.members[static_cast<std::size_t>(m)];
                if (who < 1 || who >= g.artist.recordCount()) continue;
                g.artist.read(who);
                g.label.read(l);
                const LookReading r = readLook(g);
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
    int rating = 50 - penalty;
    for (int32_t n = 1; n != g.asslook.recordCount(); ++n) {
        g.asslook.read(n);
        if (g.asslook->a == look.id && g.asslook->b == a.style) {
            rating += g.asslook->weight;
            break;
        }
    }
    return static_cast<uint8_t>(std::clamp(rating, 0, 100));
}
void imageReport(Game& g) {
    ScheduleRecord entry = g.schedule.rec;
    if (entry.artist < 1 || entry.artist >= g.artist.recordCount() || entry.label < 1 ||
        entry.label >= g.label.recordCount())
        return;
    g.label.read(entry.label);
    g.artist.read(entry.artist);
    const LookReading r = readLook(g);
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
