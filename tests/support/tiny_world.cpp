#include "support/tiny_world.h"

#include <fstream>

#include "world/catalogue.h"
#include "world/numbers.h"
#include "world/records.h"
#include "world/table.h"

namespace trovane::test {

namespace fs = std::filesystem;

namespace {

template <class R, class Fill>
void addRecord(const fs::path& dir, FileNo n, const char* stem, Fill fill) {
    Table<R> t(n);
    t.open(dir / (std::string(stem) + ".gam"), IfMissing::createEmpty);
    t.rec = R{};
    fill(t.rec);
    t.append();
    t.close();
}

}  // namespace

void writeTinyWorld(const fs::path& dir) {
    fs::create_directories(dir);
    std::ofstream(dir / "empty.gam", std::ios::binary).close();
    for (auto stem : tableSetStems()) std::ofstream(dir / (std::string(stem) + ".gam"), std::ios::binary).close();

    struct Country { const char* name; const char* adjective; const char* region; };
    for (Country c : {Country{"England", "English", "E"}, Country{"France", "French", "E"},
                      Country{"United States", "American", "N"}})
        addRecord<CountryRecord>(dir, FileNo::fileCountry, "country", [&](CountryRecord& r) {
            r.name = c.name;
            r.adjective = c.adjective;
            r.region = c.region;
        });
    struct City { const char* name; uint8_t country; };
    for (City c : {City{"London", 1}, City{"Manchester", 1}, City{"Paris", 2}, City{"New York", 3}})
        addRecord<CityRecord>(dir, FileNo::fileCity, "city", [&](CityRecord& r) {
            r.name = c.name;
            r.country = c.country;
            r.size = 5;
        });
    for (const char* style : {"Rock", "Pop"})
        addRecord<StyleRecord>(dir, FileNo::fileStyle, "style", [&](StyleRecord& r) { r.name = style; });
    addRecord<LabelRecord>(dir, FileNo::fileLabel, "label", [](LabelRecord& r) {
        r.name = "Quarry Records";
        r.city = 1;
        r.picture = "none.jpg";
        r.cashBalance = moneyUnits(2500000);
        r.reputation = {30, 10, 20, 5, 5};
    });
    addRecord<BandRecord>(dir, FileNo::fileBand, "band", [](BandRecord& r) {
        r.name = "The Paper Lanterns";
        r.label = 1;
        r.style = 1;
        r.picture = "none.jpg";
    });
    for (const char* line : {"The week's record sales are counted every Sunday.",
                             "Friday is pay day for every label in the business.",
                             "Saturday is the one day of the week on which no weekly business runs."})
        addRecord<FactRecord>(dir, FileNo::fileFact, "fact", [&](FactRecord& r) { r.text = line; });
}

}  // namespace trovane::test
