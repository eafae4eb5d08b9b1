#include "label/scouting.h"

#include <algorithm>

#include "floor/grammar.h"
#include "floor/news_post.h"
#include "label/departments.h"
#include "label/scouting_text.h"
#include "schedule/schedule.h"
#include "talent/band_functions.h"
#include "talent/contract_terms.h"
#include "talent/contracts.h"
#include "world/game.h"
#include "world/record_bytes.h"
#include "world/record_store.h"
#include "world/shortlist_lookups.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr int kMostSamples = 25;
constexpr int kSampleTries = 1000;
constexpr int kWorthListing = 75;

int16_t currentBandId(Game& g) { return g.band->id; }
int16_t currentLabelId(Game& g) { return g.label->id; }

// The record of the pair, or 0.
int32_t findPair(Game& g, int16_t band, int16_t label) { return findShortlistPair(g, band, label); }

int mean(int sum, int count) { return count == 0 ? 0 : roundTo<int>(static_cast<double>(sum) / count); }

std::string listItem(const std::string& head, const std::string& lines) { return head + "\r\n\r\n" + lines; }

}  // namespace

void tidyShortlist(Game& g) {
    compactTable(g, g.shortlist, [](const ShortlistRecord& r) { return r.band >= 1 && r.label >= 1; });
}

bool isShortlisted(Game& g) { return findPair(g, currentBandId(g), currentLabelId(g)) != 0; }

void shortlistAdd(Game& g) {
    const int16_t band = currentBandId(g);
    const int16_t label = currentLabelId(g);
    if (findPair(g, band, label) != 0) return;
    g.shortlist.rec = ShortlistRecord{};
    g.shortlist->band = band;
    g.shortlist->label = label;
    g.shortlist.append();
}

void shortlistRemove(Game& g) {
    const int32_t n = findPair(g, currentBandId(g), currentLabelId(g));
    if (n == 0) return;
    g.shortlist->band = 0;
    g.shortlist->label = 0;
    g.shortlist.write(n);
}

void tidyShortlistForBand(Game& g) {
    const int16_t band = currentBandId(g);
    const int16_t player = g.player.playerLabel;
    const bool signedToPlayer = player > 0 && g.band->label == player;
    for (int32_t n = 1; n < g.shortlist.recordCount(); ++n) {
        g.shortlist.read(n);
        if (g.shortlist->band != band) continue;
        if (g.shortlist->label == player && !signedToPlayer) continue;
        g.shortlist->band = 0;
        g.shortlist->label = 0;
        g.shortlist.write(n);
    }
}

std::vector<std::string> fillInterestedList(Game& g) {
    const int16_t band = currentBandId(g);
    std::vector<std::string> names;
    for (int32_t n = 1; n < g.shortlist.recordCount(); ++n) {
        g.shortlist.read(n);
        if (g.shortlist->band != band || g.shortlist->label < 1) continue;
        const int16_t label = g.shortlist->label;
        LabelRecord keep = g.label.rec;
        g.label.read(label);
        names.push_back(trim(g.label->name.value));
        g.label.rec = keep;
    }
    if (names.empty()) names.emplace_back("None");
    return names;
}

StyleWalk walkStyles(const Game& g, int labelStyle, int bandStyle) {
    static const std::size_t kParentStyle = offsetIn<StyleRecord>("parentStyle");
    StyleWalk walk;
    int style = bandStyle;
    // A loop in the parent links would walk for ever; no chain is longer than the table.
    for (int steps = 0; style > 0 && steps < g.style.recordCount(); ++steps) {
        if (style == labelStyle) {
            walk.associated = true;
            break;
        }
        if (style >= g.style.recordCount()) break;
        walk.lastRead = style;
        style = fieldAt<decltype(StyleRecord::parentStyle)>(g.style.bytesOf(style), kParentStyle);
    }
    return walk;
}

bool stylesAssociated(Game& g, int labelStyle, int bandStyle) {
    const StyleWalk walk = walkStyles(g, labelStyle, bandStyle);
    if (walk.lastRead > 0) g.style.read(walk.lastRead);
    return walk.associated;
}

ShortlistVerdict shortlistVerdict(const Game& g, const LabelRecord& label, const BandRecord& band, int force,
                                  const StyleWalker& walk) {
    ShortlistVerdict v;
    if (band.label == 0) {
        if (label.labelStyle == 0) {
            v.qualifies = true;
        } else {
            const StyleWalk w = walk(label.labelStyle, band.style);
            v.qualifies = w.associated;
            v.styleRead = w.lastRead;
        }
    }
    std::size_t top = 0;
    if (v.qualifies) {
        const auto& rep = band.reputation;
        top = static_cast<std::size_t>(std::max_element(rep.begin(), rep.end()) - rep.begin());
        // The player's label has no controversy bounds: its test passes.
        const bool players = g.player.playerLabel > 0 && label.id == g.player.playerLabel;
        v.qualifies = players || (label.minControversy <= band.controversy && band.controversy <= label.maxControversy);
    }
    if (force == 0 && v.qualifies) {
        const double t = label.reputationTarget[top];
        const double r = band.reputation[top];
        v.qualifies = r < t && t / 2 <= r;
    }
    return v;
}

bool considerForShortlist(Game& g, int force) {
    const ShortlistVerdict v = shortlistVerdict(g, g.label.rec, g.band.rec, force, [&g](int labelStyle, int bandStyle) {
        return walkStyles(g, labelStyle, bandStyle);
    });
    if (v.styleRead > 0) g.style.read(v.styleRead);
    if (v.qualifies) {
        const int n = g.rng.between(0, 99);
        if (force != 0 || n > 50) shortlistAdd(g);
    }
    return v.qualifies;
}

BandEstimate estimateBand(Game& g) {
    const BandRecord band = g.band.rec;
    g.style.read(band.style);
    const StyleRecord style = g.style.rec;
    const int careerAge = careerAgeOf(g);
    int imageSum = 0;
    int potentialSum = 0;
    int count = 0;
    for (int i = 0; i < std::min<int>(band.memberCount, 10); ++i) {
        const int16_t who = band.members[static_cast<std::size_t>(i)];
        if (who < 1) continue;
        g.artist.read(who);
        imageSum += g.artist->imageRating;
        potentialSum += g.artist->potential;
        ++count;
    }
    int talent = mean(imageSum, count);
    int potential = mean(potentialSum, count);
    const int weight = std::clamp(100 - careerAge, 0, 100);
    int now = roundTo<int>((weight * potential + (100 - weight) * band.ability) / 100.0);
    now = roundTo<int>(style.commerciality * now / 100.0);
    talent = applyDepartmentError(g, talent, artistAndRepertoire);
    potential = applyDepartmentError(g, potential, artistAndRepertoire);
    now = applyDepartmentError(g, now, artistAndRepertoire);
    const int present = now + roundTo<int>((100 - style.commerciality) * talent / 100.0);
    return {std::clamp(present, 0, 100), talent, potential};
}

void deliverScoutingReports(Game& g) {
    // The free acts are counted in the bands' bytes; the buffer is left at the
    // last band, as reading each in turn leaves it.
    static const std::size_t kLabel = offsetIn<BandRecord>("label");
    static const std::size_t kRetired = offsetIn<BandRecord>("retired");
    int unsignedCount = 0;
    const int32_t bands = g.band.recordCount() - 1;
    for (int32_t n = 1; n <= bands; ++n) {
        const auto bytes = g.band.bytesOf(n);
        if (fieldAt<decltype(BandRecord::label)>(bytes, kLabel) == 0 &&
            fieldAt<decltype(BandRecord::retired)>(bytes, kRetired) == kFalse)
            ++unsignedCount;
    }
    if (bands >= 1) g.band.read(bands);
    for (int32_t l = 1; l < g.label.recordCount(); ++l) {
        g.label.read(l);
        const int samples = std::min(
            {roundTo<int>(g.label->department[artistAndRepertoire].rating / 4.0), unsignedCount, kMostSamples});
        const bool players = l == g.player.playerLabel;
        std::vector<int16_t> taken;
        std::string lines;
        for (int tries = 0; tries < kSampleTries && static_cast<int>(taken.size()) < samples; ++tries) {
            const auto n = static_cast<int16_t>(g.rng.between(1, bands));
            g.band.read(n);
            if (g.band->retired != kFalse || g.band->label != 0) continue;
            if (std::find(taken.begin(), taken.end(), n) != taken.end()) continue;
            taken.push_back(n);
            g.label.read(l);
            if (isShortlisted(g)) continue;
            g.band.read(n);
            const int estimate = estimateBand(g).present;
            g.band.read(n);
            if (estimate <= kWorthListing) continue;
            if (!considerForShortlist(g, -1) || !players) continue;
            g.band.read(n);
            g.style.read(g.band->style);
            lines += "- " + trim(g.band->name.value) + " (" + trim(g.style->name.value) + ")\r\n";
        }
        if (lines.empty()) continue;
        postNews(g, {.date = g.gameDate + 1,
                     .title = "A&R Department present their monthly findings",
                     .text = listItem("Your Artist and Repertoire department have presented you with their monthly "
                                      "finding this morning, they have added the following band(s) to your "
                                      "shortlist as they feel they are worth investigating further with a view to "
                                      "offering a contract :-",
                                      lines)});
    }
}

void bandReport(Game& g) {
    const ScheduleRecord entry = g.schedule.rec;
    if (entry.band < 1 || entry.label < 1) return;
    g.label.read(entry.label);
    g.band.read(entry.band);
    const BandEstimate e = estimateBand(g);
    g.band.read(entry.band);
    postNews(g, {.date = g.gameDate + 1,
                 .title = "A&R Department present " + trim(g.band->name.value) + " scouting report",
                 .text = scoutingReportText(g, e.present, e.potential)});
}

std::string checkBandPanel(Game& g, int16_t band) {
    const int16_t player = g.player.playerLabel;
    g.band.read(band);
    if (player > 0 && g.band->label == player)
        return trim(g.band->name.value) + " " + grammarWord(g, 0, false) + " already signed to your label.";
    if (hasOfferFrom(g, player, band) != 0)
        return "Your offer to " + trim(g.band->name.value) + " is still being considered.";
    return {};
}

double scoutBand(Game& g, int16_t band) {
    ScheduleRecord r{};
    r.type = 6;
    r.date = g.gameDate + g.rng.between(5, 7);
    r.band = band;
    r.label = g.player.playerLabel;
    addSchedule(g, r);
    return r.date;
}

bool toggleShortlist(Game& g, int16_t band) {
    g.band.read(band);
    g.label.read(g.player.playerLabel);
    if (isShortlisted(g)) {
        shortlistRemove(g);
        return false;
    }
    shortlistAdd(g);
    return true;
}

std::vector<int16_t> playerShortlist(Game& g) {
    std::vector<int16_t> out;
    const int16_t player = g.player.playerLabel;
    for (int32_t n = 1; n < g.shortlist.recordCount(); ++n) {
        g.shortlist.read(n);
        if (player > 0 && g.shortlist->label == player && g.shortlist->band > 0) out.push_back(g.shortlist->band);
    }
    return out;
}

}  // namespace trovane
