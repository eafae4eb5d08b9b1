#pragma once
// Hand-made styles, labels and acts for the condition, scouting and contract tests.
#include <array>
#include <initializer_list>
#include <string>

#include "support/calendar_world.h"
#include "world/game.h"

namespace trovane::test {

inline int16_t addStyle(Game& g, uint8_t lifeSpan, uint8_t commerciality = 100, uint8_t parent = 0,
                        const std::string& name = "Rock") {
    g.style.rec = StyleRecord{.name = name,
                              .lifeSpan = lifeSpan,
                              .commerciality = commerciality,
                              .abilityWeight = 100,
                              .parentStyle = parent};
    return static_cast<int16_t>(g.style.append());
}

inline int16_t addJob(Game& g, int16_t rank) {
    g.job.rec = JobRecord{.title = "Singer", .rank = rank};
    return static_cast<int16_t>(g.job.append());
}

inline int16_t addLabel(Game& g, std::array<uint8_t, 5> reputation, const std::string& name = "Rival Records",
                        uint8_t aAndR = 100) {
    g.label.rec = LabelRecord{.name = name, .maxControversy = 100, .reputation = reputation};
    g.label->department[0].rating = aAndR;
    return static_cast<int16_t>(g.label.append());
}

struct ActSpec {
    std::array<uint8_t, 5> reputation{};
    std::initializer_list<int16_t> ranks = {1};  // one member per job rank
    int16_t label = 0;
    uint8_t style = 1;
    uint8_t age = 0;
    std::string name = "The Testers";
};

// An act whose members hold jobs of the given ranks, each with the band's
// reputation; left in the band buffer.
inline int16_t addAct(Game& g, const ActSpec& s) {
    g.band.rec = BandRecord{};
    const int16_t id = static_cast<int16_t>(g.band.recordCount());
    int i = 0;
    std::array<int16_t, 10> members{};
    for (int16_t rank : s.ranks) {
        int16_t job = addJob(g, rank);
        g.artist.rec = ArtistRecord{.forename = "Member",
                                    .surname = std::to_string(i + 1),
                                    .job = static_cast<uint8_t>(job),
                                    .style = s.style,
                                    .male = kTrue,
                                    .band = id,
                                    .reputation = s.reputation,
                                    .energy = 100};
        members[static_cast<std::size_t>(i++)] = static_cast<int16_t>(g.artist.append());
    }
    g.band.rec = BandRecord{.name = s.name,
                            .age = s.age,
                            .style = s.style,
                            .label = s.label,
                            .memberCount = static_cast<uint8_t>(i),
                            .members = members,
                            .reputation = s.reputation};
    for (std::size_t m = 0; m < 5; ++m) g.band->hype[m] = static_cast<int16_t>(-s.reputation[m]);
    g.band.append();
    return id;
}

}  // namespace trovane::test
