#include "worldtool/tiny_industry.h"

#include "worldtool/tiny_world.h"

namespace trovane::test {

std::map<std::string, std::string> tinyIndustrySources() {
    std::map<std::string, std::string> files;
    files["firms.toml"] = R"(business = [
  { name = "Abbey Mill Studios", kind = 0, city = "London", quality = 80, open = true },
  { name = "Thames Pressing", kind = 1, city = "London", quality = 60, open = true },
  { name = "Lantern Distribution", kind = 2, city = "London", quality = 70, owner = "Halcyon Records" },
]
)";
    files["labels.toml"] = R"([[label]]
name = "Halcyon Records"
founded = 61
city = "London"
cashBalance = 45000000
reputation = [75, 55, 65, 45, 40]
boss = "Morag Dunbar"
department = [
  { staffAtLevel = [2, 3, 4, 2, 1], head = "Ian Thornbury" },
  { staffAtLevel = [1, 0, 0, 0, 0] },
  {}, {}, {}, {},
]

[[label]]
name = "Kestrel Sound"
parentLabel = "Halcyon Records"
reputation = [20, 0, 5, 0, 0]
boss = "Yuki Thornbury"
department = [{}, {}, {}, {}, {}, {}]
)";
    files["staff.toml"] = R"(staff = [
  { forename = "Morag", surname = "Dunbar", age = 46, male = false, country = "Scotland", ability = 72,
    reputation = [60, 30, 45, 20, 15], employer = "Halcyon Records", department = 3,
    aptitude = [50, 60, 40, 70, 55, 45, 65, 50, 60], preferredStyle = "Legend" },
  { forename = "Ian", surname = "Thornbury", age = 39, male = true, country = "England", ability = 80, wage = 900,
    employer = "Halcyon Records", department = 0 },
  { forename = "Yuki", surname = "Thornbury", age = 30, male = false, country = "Japan", ability = 50,
    employer = "Kestrel Sound" },
  { forename = "Oliver", surname = "Thornbury", age = 50, male = true, country = "Wales", ability = 40 },
]
)";
    files["acts.toml"] = R"([[band]]
name = "The Paper Lanterns"
style = "Indie Rock"
age = 3
formedIn = "London"
label = "Halcyon Records"
reputation = [45, 10, 20, 5, 5]
signedOn = 2002-06-01
initialAdvance = 250000
additionalAdvance = 300000
additionalAdvanceCount = 2
optionLength = 12
optionsRemaining = 3
optionMonthsLeft = 100
royaltyRate = 12

  [[band.member]]
  forename = "Jess"
  surname = "Hartigan"
  age = 24
  job = "Lead Singer"
  country = "England"
  city = "London"
  male = false
  ability = 64
  talentCeiling = 72
  potential = 72
  charisma = 70
  controversy = 30
  live = 65
  stamina = 80
  attitudeLevel = 5
  songQuality = 60
  royaltyShare = 40

  [[band.member]]
  forename = "Oliver"
  surname = "Thornbury"
  age = 26
  job = "Drummer"
  country = "Wales"
  male = true
  ability = 51
  talentCeiling = 60
  potential = 60
  charisma = 40
  controversy = 55
  live = 70
  stamina = 61
  attitudeLevel = 9
  royaltyShare = 30

  [[band.disc]]
  title = "Maps of the Small Hours"
  isSingle = false
  released = { UK = 2003-09-15, US = 2003-10-06 }
  totalSales = [310000, 45000, 0, 0, 0]
  studio = "Abbey Mill Studios"
  distributor = ["Lantern Distribution"]
  tracks = [
    { title = "Streetlight Sermon", writer = "Jess Hartigan", quality = 70, commerciality = 62, written = 2003-02-10 },
    { title = "Bought-in Ballad", quality = 51, commerciality = 70 },
  ]

  [[band.disc]]
  title = "Streetlight Sermon"
  isSingle = true
  released = { UK = 2003-08-25, Global = 2003-09-01 }
  tracks = ["Streetlight Sermon", { title = "Tuesday Gospel", writer = "Jess Hartigan", quality = 40, commerciality = 30 }]
)";
    files["acts_indies.toml"] = R"([[band]]
name = "Yuki Tanabe"
style = "Legend"
formedIn = "Japan"
reputation = [2, 2, 2, 2, 30]
monthsUnsigned = 4
member = [ { forename = "Yuki", surname = "Tanabe", age = 22, job = "Singer-Songwriter", country = "Japan",
             male = false, ability = 45, talentCeiling = 80, potential = 80 } ]
)";
    files["hidden.toml"] = R"([[hiddenBand]]
name = "The Salt Lanterns"
style = "Indie Rock"
reputation = [60, 40, 50, 30, 20]
member = [ { forename = "Ivo", surname = "Marsh", age = 28, job = "Singer-Songwriter", country = "England",
             male = true, ability = 77, talentCeiling = 85, potential = 85, royaltyShare = 70 } ]
)";
    files["ceremonies.toml"] = R"([[ceremony]]
name = "The Silver Stylus Awards"
country = "England"
calendar = [6, 5, 8, 0, 0, 0]
award = [
  { name = "Best British Album", kind = 0, basis = 1, weight = 70, styleRule = "Indie Rock", origin = "England",
    nomineeCount = 5, commercialityRange = [10, 90] },
  { name = "Best Newcomer", kind = 2, originGroup = -3 },
]
)";
    files["events.toml"] =
        R"(crime = [ { crimeName = "assault", acquittalEvent = "brawl-acquitted", guiltyEvent = "brawl-trial", sentence = 6 } ]

[[event]]
name = "arrest-for-brawl"
participantCount = 1
eventType = 3
title = "<an1> arrested after nightclub brawl"
body = "<an1> of <abn1> was held after a fight."
chance = 2
isRoot = true
conditions = [ { age = 18, job = "Drummer", labelRule = "Halcyon Records", bounds = { controversy = 40, morale = -30 }, boundChange = { controversy = 5 } } ]
next = [ { event = "brawl-trial", minDelay = 20, maxDelay = 40, rollLow = 0, rollHigh = 99 } ]

[[event]]
name = "brawl-trial"
participantCount = 1
eventType = 3
title = "<an1> faces <acn> charge"
replies = [ { text = "Defend", chance = 50, next = "brawl-acquitted", money = -500 }, { text = "Stay quiet" } ]

[[event]]
name = "brawl-acquitted"
participantCount = 1
title = "<an1> cleared"
)";
    return files;
}

void writeTinyWorldWithIndustry(const std::filesystem::path& folder) {
    writeTinyWorld(folder);
    for (const auto& [name, text] : tinyIndustrySources()) writeSource(folder, name, text);
}

}  // namespace trovane::test
