#include "support/tiny_world.h"

#include <fstream>

#include "world/game.h"
#include "world/manifest.h"
#include "world/record_store.h"

namespace trovane::test {

void writeTinyBaseWorld(const std::filesystem::path& dataDir) {
    std::filesystem::create_directories(dataDir);
    std::ofstream(dataDir / "empty.gam", std::ios::binary);
    Game g(dataDir, 1);
    for (auto stem : tableSetStems()) copyEmptyFile(g, dataFile(g, stem, "gam"));
    for (const char* file : {"fact.gam", "cb.gam", "ca.gam", "highscore.gam"}) copyEmptyFile(g, dataDir / file);
    openAllTables(g, "gam");

    struct Country {
        const char* name;
        const char* adjective;
        const char* region;
        const char* city;
    };
    const Country countries[] = {
        {"England", "English", "E", "London"},
        {"Scotland", "Scottish", "E", "Glasgow"},
        {"France", "French", "E", "Paris"},
        {"Canada", "Canadian", "N", "Toronto"},
        {"New Zealand", "New Zealander", "O", "Auckland"},
        {"Brazil", "Brazilian", "S", "Rio de Janeiro"},
    };
    for (const auto& c : countries) {
        g.country.rec = CountryRecord{.name = c.name, .adjective = c.adjective, .region = c.region};
        int32_t n = g.country.append();
        g.city.rec = CityRecord{.name = c.city, .size = 10, .country = static_cast<uint8_t>(n)};
        g.city.append();
    }
    for (const char* name : {"Indie Rock", "Legend"}) {
        g.style.rec = StyleRecord{.name = name, .lifeSpan = 10};
        g.style.append();
    }
    g.label.rec = LabelRecord{
        .name = "Greystone Music", .city = 1, .cashBalance = moneyUnits(4500000), .reputation = {70, 55, 60, 40, 35}};
    int32_t label = g.label.append();

    g.staff.rec = StaffRecord{.forename = "Morag",
                              .surname = "Dunbar",
                              .ability = 60,
                              .reputation = {50, 30, 40, 20, 10},
                              .employer = static_cast<int16_t>(label)};
    int32_t boss = g.staff.append();
    g.label.read(label);
    g.label->boss = static_cast<int16_t>(boss);
    g.label.write(label);

    g.artist.rec = ArtistRecord{.forename = "Tess", .surname = "Calloway", .age = 24, .style = 1, .stamina = 70};
    int32_t artist = g.artist.append();
    g.band.rec =
        BandRecord{.name = "Tess Calloway", .style = 1, .label = static_cast<int16_t>(label), .memberCount = 1};
    g.band->members[0] = static_cast<int16_t>(artist);
    g.band->reputation = {45, 10, 20, 5, 5};
    int32_t band = g.band.append();
    g.artist.read(artist);
    g.artist->band = static_cast<int16_t>(band);
    g.artist.write(artist);
    closeAllTables(g);
    proveBaseWorld(dataDir);
}

void proveBaseWorld(const std::filesystem::path& dataDir) {
    std::vector<std::filesystem::path> files;
    for (const auto& name : baseSetFilesPresent(dataDir)) files.push_back(dataDir / name);
    writeManifest(baseSetManifest(dataDir), files);
}

}  // namespace trovane::test
