#include "events/hidden_bands.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "floor/news_post.h"
#include "label/label_standing.h"
#include "world/game.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane {

namespace {

// The names a player may type, and the act each unlocks from the bank.
constexpr std::array<std::pair<std::string_view, std::string_view>, 11> kHiddenBands = {{
    {"Ivo Marsh", "The Salt Lanterns"},
    {"Odile Crane", "The Salt Lanterns"},
    {"Ruben Teal", "Hollow Parade"},
    {"Cosmo Ashby", "The Velvet Almanac"},
    {"Dex Harlow", "Marigold Engine"},
    {"Nadia Solenne", "Nadia Solenne"},
    {"Gunnar Holt", "Blackthorn Hymnal"},
    {"Loretta Vance", "Sister Cobalt"},
    {"Tobias Wren", "Neon Vesper"},
    {"Jem Kearney", "Ironbark Choir"},
    {"Ezra Bankole", "Ezzy Sovereign"},
}};

}  // namespace

std::string hiddenBandFor(std::string_view typedName) {
    for (const auto& [name, band] : kHiddenBands)
        if (name == typedName) return std::string(band);
    return {};
}

void unlockHiddenBand(Game& g) {
    const std::string typed = trim(g.player.playerForename.value) + " " + trim(g.player.playerSurname.value);
    const std::string wanted = hiddenBandFor(typed);
    if (wanted.empty()) return;
    const auto cbFile = dataFile(g, "cb", "gam");
    const auto caFile = dataFile(g, "ca", "gam");
    if (!dataFileExists(g, cbFile) || !dataFileExists(g, caFile)) return;
    g.cb.open(cbFile, IfMissing::fail);
    g.ca.open(caFile, IfMissing::fail);
    int32_t found = 0;
    for (int32_t n = 1; n < g.cb.recordCount(); ++n) {
        g.cb.read(n);
        if (trim(g.cb->name.value) == wanted) {
            found = n;
            break;
        }
    }
    if (found != 0) {
        BandRecord band = g.cb.rec;
        const int16_t bandNo = narrow<int16_t>(g.band.recordCount());
        const int members = std::min<int>(band.memberCount, static_cast<int>(band.members.size()));
        int kept = 0;
        std::array<int16_t, 10> renumbered{};
        for (int m = 0; m < members; ++m) {
            const int16_t from = band.members[static_cast<std::size_t>(m)];
            if (from < 1 || from >= g.ca.recordCount()) continue;
            g.ca.read(from);
            g.artist.rec = g.ca.rec;
            g.artist->band = bandNo;
            g.artist->id = narrow<int16_t>(g.artist.recordCount());
            renumbered[static_cast<std::size_t>(kept++)] = narrow<int16_t>(g.artist.append());
        }
        band.members = renumbered;
        band.memberCount = narrow<uint8_t>(kept);
        band.id = bandNo;
        band.label = g.player.playerLabel;
        g.band.rec = band;
        g.band.append();
        if (g.player.playerLabel > 0) {
            g.label.read(g.player.playerLabel);
            countLabelBands(g);
            g.label.write();
        }
        postNews(g, {.date = g.gameDate,
                     .title = "Cheat band unlocked",
                     .text = wanted + " " + (kept > 1 ? "have" : "has") +
                             " been unlocked and automatically signed to your label."});
    }
    g.cb.close();
    g.ca.close();
}

}  // namespace trovane
