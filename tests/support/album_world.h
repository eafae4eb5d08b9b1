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
        g.country->name = std::string("England");
        g.country->region = std::string("E");
        g.country.append();
        g.city->name = std::string("London");
        g.city->country = 1;
        g.city.append();
        g.style->name = std::string("Rock");
        g.style->commerciality = 60;
        g.style.append();
        g.label.rec = LabelRecord{.name = std::string("Rival Records"), .bandCount = 1};
        g.label.append();
        g.label.rec = LabelRecord{.name = std::string("Home Label"), .bandCount = 1};
        g.label.append();
        g.player.playerLabel = kPlayer;
    }

    // A signed band of `members` members (men), each a writer with the given
    // skills, first term running with `options` further options.
    int16_t addBand(const std::string& name, int16_t label, int members = 2, uint8_t songQuality = 50,
                    uint8_t writingRate = 40) {
        const int16_t band = static_cast<int16_t>(g.band.recordCount());
        BandRecord b{};
        b.name = name;
        b.label = label;
        b.style = 1;
        b.memberCount = static_cast<uint8_t>(members);
        b.contractEnd = kNoDate;
        b.stamina = 50;
        b.offerStage = 1;
        b.additionalAdvanceCount = 2;
        b.optionsRemaining = 3;
        b.optionMonthsLeft = 12;
        b.reputation = {10, 10, 10, 10, 10};
        for (int i = 0; i < members; ++i) {
            ArtistRecord a{};
            a.forename = "Member" + std::to_string(i + 1);
            a.surname = name;
            a.male = -1;
            a.band = band;
            a.style = 1;
            a.songQuality = songQuality;
            a.songCommerciality = songQuality;
            a.writingRate = writingRate;
            a.energy = 100;
            g.artist.rec = a;
            b.members[static_cast<std::size_t>(i)] = static_cast<int16_t>(g.artist.append());
        }
        g.band.rec = b;
        return static_cast<int16_t>(g.band.append());
    }

    int16_t addFirm(const std::string& name, uint8_t kind, uint8_t quality, int16_t owner, bool open = true) {
        g.business.rec = BusinessRecord{};
        g.business->name = name;
        g.business->kind = kind;
        g.business->city = 1;
        g.business->quality = quality;
        g.business->owner = owner;
        g.business->open = open ? int16_t{-1} : int16_t{0};
        return static_cast<int16_t>(g.business.append());
    }

    int32_t addSong(int16_t band, uint8_t quality, uint8_t commerciality, uint16_t disc = 65535) {
        g.song.rec = SongRecord{};
        g.song->title = std::string("Song");
        g.song->band = band;
        g.song->quality = quality;
        g.song->commerciality = commerciality;
        g.song->disc = disc;
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
