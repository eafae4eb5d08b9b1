#pragma once
// A small hand-made world for songs, firms and contracts: one city, one
// style, a rival label (1) and the player's label (2), and a helper to make
// a signed band with its members.
#include <initializer_list>
#include <string>

#include "label/finances.h"
#include "support/empty_game.h"
#include "world/dates.h"
#include "world/game.h"

namespace trovane::test {

struct AlbumWorld {
    EmptyGame eg;
    Game& g = eg.g;
    static constexpr int16_t kRival = 1;
    static constexpr int16_t kPlayer = 2;

    AlbumWorld() {
        g.country.rec = CountryRecord{.name = "England", .region = "E"};
        g.country.append();
        g.city.rec = CityRecord{.name = "London", .country = 1};
        g.city.append();
        g.style.rec = StyleRecord{.name = "Rock", .commerciality = 60};
        g.style.append();
        for (const char* name : {"Rival Records", "Home Label"}) {
            g.label.rec = LabelRecord{.name = name, .bandCount = 1};
            g.label.append();
        }
        g.player.playerLabel = kPlayer;
    }

    // A signed band of `members` members (men), each a writer with the given
    // skills, first term running with `options` further options.
    int16_t addBand(const std::string& name, int16_t label, int members = 2, uint8_t songQuality = 50,
                    uint8_t writingRate = 40) {
        const int16_t band = static_cast<int16_t>(g.band.recordCount());
        BandRecord b{.name = name,
                     .style = 1,
                     .label = label,
                     .memberCount = static_cast<uint8_t>(members),
                     .contractEnd = kNoDate,
                     .stamina = 50,
                     .reputation = {10, 10, 10, 10, 10},
                     .offerStage = 1,
                     .optionsRemaining = 3,
                     .optionMonthsLeft = 12,
                     .additionalAdvanceCount = 2};
        for (int i = 0; i < members; ++i) {
            g.artist.rec = ArtistRecord{.forename = "Member" + std::to_string(i + 1),
                                        .surname = name,
                                        .style = 1,
                                        .male = -1,
                                        .band = band,
                                        .songQuality = songQuality,
                                        .writingRate = writingRate,
                                        .songCommerciality = songQuality,
                                        .energy = 100};
            b.members[static_cast<std::size_t>(i)] = static_cast<int16_t>(g.artist.append());
        }
        g.band.rec = b;
        return static_cast<int16_t>(g.band.append());
    }

    int16_t addFirm(const std::string& name, uint8_t kind, uint8_t quality, int16_t owner, bool open = true) {
        g.business.rec = BusinessRecord{
            .name = name, .kind = kind, .city = 1, .quality = quality, .owner = owner, .open = int16_t(open ? -1 : 0)};
        return static_cast<int16_t>(g.business.append());
    }

    int32_t addSong(int16_t band, uint8_t quality, uint8_t commerciality, uint16_t disc = 65535) {
        g.song.rec =
            SongRecord{.title = "Song", .band = band, .quality = quality, .commerciality = commerciality, .disc = disc};
        return g.song.append();
    }

    // The label's running total of a category this month.
    Money ledger(int16_t label, int category) {
        g.label.read(label);
        return ledgerEntry(g.label.rec, 0, category);
    }
    Money cash(int16_t label) {
        g.label.read(label);
        return g.label->cashBalance;
    }
    // The newest news item, in the news buffer.
    const NewsRecord& lastNews() {
        g.news.read(g.news.recordCount() - 1);
        return g.news.rec;
    }
    int32_t newsCount() { return g.news.recordCount() - 1; }
};

}  // namespace trovane::test
