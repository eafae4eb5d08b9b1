#include "worldtool/tiny_world.h"

#include <fstream>

namespace trovane::test {

void writeSource(const std::filesystem::path& folder, std::string_view file, std::string_view text) {
    std::ofstream(folder / file, std::ios::binary | std::ios::trunc) << text;
}

void writeTinyWorld(const std::filesystem::path& folder) {
    writeSource(folder, "countries.toml", R"(country = [
  { name = "England", adjective = "English", region = "E" },
  { name = "Scotland", adjective = "Scottish", region = "E" },
  { name = "Wales", adjective = "Welsh", region = "E" },
  { name = "Northern Ireland", adjective = "Northern Irish", region = "E" },
  { name = "Brazil", adjective = "Brazilian", region = "S" },
  { name = "Japan", adjective = "Japanese", region = "A" },
]
)");
    writeSource(folder, "cities.toml", R"(city = [
  { name = "London", country = "England", size = 10 },
  { name = "São Paulo", country = "Brazil", size = 9 },
]
)");
    writeSource(folder, "venues.toml", R"(venue = [
  { name = "The Half Moon Back Room", city = "London", capacity = 120, rating = 5, flags = 0 },
]
)");
    writeSource(folder, "forenames.toml", R"(forename = [
  { name = "Oliver", male = true, countries = { Wales = 8, Brazil = 1 } },
  { name = "Yuki", male = false, countries = { Japan = 5 } },
  { name = "Alex", male = false, countries = {} },
]
)");
    writeSource(folder, "surnames.toml", R"(surname = [
  { name = "Thornbury", countries = { England = 6 } },
]
)");
    writeSource(folder, "jobs.toml", R"(job = [
  { title = "Lead Singer", titleFemale = "Lead Singer", rank = 1, department = 0 },
  { title = "Drummer", titleFemale = "Drummer", rank = 3 },
  { title = "Singer-Songwriter", titleFemale = "Singer-Songwriter", rank = 1 },
]
)");
    writeSource(folder, "styles.toml", R"([[style]]
name = "Indie Rock"
lifeSpan = 8
popularity = [30, 18, 25, 20, 10]
membersHigh = 5
membersUsual = 4
membersLow = 3
bandJobs = ["Lead Singer", "Drummer"]
soloJob = "Singer-Songwriter"
base = { charisma = 55, angst = 60 }
soloPercent = 15
parentStyle = "Legend"

[[style]]
name = "Legend"
lifeSpan = 30
popularity = [10, 10, 10, 10, 10]
membersHigh = 1
membersUsual = 1
membersLow = 1
bandJobs = ["Singer-Songwriter"]
)");
    writeSource(folder, "looks.toml", R"([[look]]
name = "Leather and Studs"
sex = 2
[look.bounds]
charisma = [40, 100]
controversy = [50, 100]
flair = [0, 100]
dancing = [0, 60]
live = [0, 100]
attitude = [50, 100]
angst = [40, 100]
visual = [30, 90]
)");
    writeSource(folder, "products.toml", R"(product = [
  { name = "Fizzco Cola", minimumReputation = 40, countries = ["Japan", "Scotland"], area = "X", maxControversy = 60 },
]
)");
    writeSource(folder, "associations.toml", R"(assnation = [ { a = "England", b = "Brazil", weight = 5 } ]
assstyle  = [ { a = "Indie Rock", b = "Legend", weight = 10 } ]
asslook   = [ { look = "Leather and Studs", style = "Legend", bonus = 20 } ]
)");
    writeSource(folder, "banks.toml", R"(fact = ["Did you know? Tours sell records."]
[newband]
"Legend" = ["The Paper Lanterns"]
"Indie Rock" = ["Velvet Static", "Copper Harbour"]
[newsong]
"Indie Rock" = ["Streetlight Sermon"]
[newalbum]
"Legend" = ["Maps of the Small Hours"]
)");
}

}  // namespace trovane::test
