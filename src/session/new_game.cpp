#include "session/new_game.h"

#include "events/scores.h"

#include <fmt/format.h>

#include "events/ceremonies.h"
#include "events/hidden_bands.h"
#include "events/scores.h"
#include "floor/date_helpers.h"
#include "floor/formats.h"
#include "floor/grammar.h"
#include "floor/news_post.h"
#include "floor/number_helpers.h"
#include "floor/preferences.h"
#include "label/departments.h"
#include "label/finances.h"
#include "label/image.h"
#include "label/label_standing.h"
#include "live/festivals.h"
#include "production/businesses.h"
#include "production/charts.h"
#include "production/discs.h"
#include "production/songwriting.h"
#include "schedule/schedule.h"
#include "session/empty_world.h"
#include "session/invariants.h"
#include "talent/band_creation.h"
#include "world/dates.h"
#include "world/record_store.h"
#include "world/strings.h"

namespace trovane {

namespace fs = std::filesystem;

namespace {

void report(Game& g, int percent) {
    if (g.progress) g.progress(percent);
}

unsigned monthNumber(std::string_view name) {
    for (unsigned m = 1; m <= 12; ++m)
        if (monthName(m) == trim(name)) return m;
    return 0;
}

// Whole years from one date to another.
int wholeYearsBetween(double from, double to) {
    CivilDate a = civilFromSerial(from), b = civilFromSerial(to);
    int years = b.year - a.year;
    if (b.month < a.month || (b.month == a.month && b.day < a.day)) --years;
    return years;
}

// The same day some years later (29 February falls to the 28th).
double yearsLater(double date, int years) {
    CivilDate d = civilFromSerial(date);
    unsigned day = std::min(d.day, daysInMonth(d.year + years, d.month));
    return serialFromCivil(d.year + years, d.month, day);
}

}  // namespace

PlayerChoices defaultPlayerChoices(Game& g) {
    readPrefs(g);
    const PrefsRecord& p = g.prefs.rec;
    PlayerChoices c;
    unsigned month = monthNumber(p.birthMonth.value);
    if (p.birthYear >= 1880 && p.birthYear <= 2003 && month != 0 && p.birthDay >= 1) {
        c.birthYear = p.birthYear;
        c.birthMonth = month;
        c.birthDay = keptBirthDay(p.birthDay, c.birthYear, c.birthMonth);
    }
    if (!p.nationality.empty()) c.nationality = trim(p.nationality.value);
    c.forename = trim(p.forename.value);
    c.surname = trim(p.surname.value);
    c.male = p.gender == 0;
    return c;
}

std::vector<int> birthYears() {
    std::vector<int> years;
    for (int y = 1880; y <= 2003; ++y) years.push_back(y);
    return years;
}

int daysInBirthMonth(int year, unsigned month) { return static_cast<int>(daysInMonth(year, month)); }

int keptBirthDay(int day, int year, unsigned month) { return day <= daysInBirthMonth(year, month) ? day : 1; }

void beginNewGame(Game& g) {
    closeAllTables(g);
    copyTableSet(g, "gam", "vel");
    openAllTables(g, "vel");
}

void discardWorkingSet(Game& g) {
    closeAllTables(g);
    std::error_code ec;
    for (const auto& e : fs::directory_iterator(g.dataDir, ec))
        if (e.path().extension() == ".vel") fs::remove(e.path(), ec);
}

NewPlayer confirmPlayer(Game& g, const PlayerChoices& choices) {
    readPrefs(g);
    g.prefs->nationality = choices.nationality;
    g.prefs->forename = trim(choices.forename);
    g.prefs->surname = trim(choices.surname);
    g.prefs->gender = choices.male ? 0 : 1;
    g.prefs->birthDay = narrow<uint8_t>(choices.birthDay);
    g.prefs->birthMonth = std::string(monthName(choices.birthMonth));
    g.prefs->birthYear = narrow<int16_t>(choices.birthYear);
    writePrefs(g);

    for (int32_t n = 1; n != g.label.recordCount(); ++n) {
        g.label.read(n);
        countLabelBands(g);
        g.label.write(n);
    }

    g.player.playerForename = trim(choices.forename);
    g.player.playerSurname = trim(choices.surname);
    g.gameStartDate = gameStartDay();
    g.gameDate = g.gameStartDate;
    g.currentYear = static_cast<int16_t>(yearOf(g.gameDate));

    // The player as the head of a label: a staff record, written when the game starts.
    StaffRecord s{};
    s.id = narrow<int16_t>(g.staff.recordCount());
    s.forename = g.player.playerForename;
    s.surname = g.player.playerSurname;
    s.birthDate =
        serialFromCivil(choices.birthYear, choices.birthMonth,
                        static_cast<unsigned>(keptBirthDay(choices.birthDay, choices.birthYear, choices.birthMonth)));
    // Reckoned from the computer's date, not the game's.
    double today = g.clockDate();
    s.age = narrow<uint8_t>(std::clamp(wholeYearsBetween(s.birthDate, today), 0, 255));
    s.male = boolean(choices.male);
    s.country = narrow<int16_t>(findRecordByName(g, FileNo::fileCountry, choices.nationality));
    s.picture = "none.jpg";
    s.contractEnd = yearsLater(today, 1);
    return {choices, s};
}

const std::vector<Continent>& continents() {
    static const std::vector<Continent> kContinents = {{"Africa", "F"},  {"Asia", "A"},
                                                       {"Europe", "E"},  {"North America", "N"},
                                                       {"Oceania", "O"}, {"South America", "S"}};
    return kContinents;
}

LabelChoices defaultLabelChoices(Game& g) {
    readPrefs(g);
    const PrefsRecord& p = g.prefs.rec;
    LabelChoices c;
    if (!p.labelName.empty()) c.name = trim(p.labelName.value);
    if (!p.continent.empty()) c.continent = trim(p.continent.value);
    if (!p.labelNationality.empty()) c.country = trim(p.labelNationality.value);
    if (!p.city.empty()) c.city = trim(p.city.value);
    if (!p.style.empty()) c.style = trim(p.style.value);
    return c;
}

std::vector<ListRow> countriesOfContinent(Game& g, const std::string& continent) {
    for (const auto& c : continents())
        if (continent == c.name) return listCountries(g, 3, c.region);
    return {};
}

std::vector<ListRow> citiesOfCountry(Game& g, const std::string& country) {
    return listCities(g, 2, findRecordByName(g, FileNo::fileCountry, country));
}

std::array<uint8_t, 5> newLabelReputation(Game& g, int32_t countryNumber) {
    enum { uk = 0, us = 1, europe = 2, oceania = 3, global = 4 };
    std::array<int, 5> order{global, oceania, uk, europe, us};
    if (countryNumber > 0 && countryNumber < g.country.recordCount()) {
        g.country.read(countryNumber);
        std::string name = trim(g.country->name.value);
        std::string region = trim(g.country->region.value);
        if (name == "England" || name == "Scotland" || name == "Wales" || name == "Northern Ireland")
            order = {uk, europe, us, oceania, global};
        else if (region == "E")
            order = {europe, uk, us, oceania, global};
        else if (region == "N")
            order = {us, europe, oceania, uk, global};
        else if (region == "O")
            order = {oceania, us, europe, uk, global};
    }
    std::array<uint8_t, 5> shares{};
    std::array<uint8_t, 5> rep{};
    setRegionalShares(g, 1, shares[0], shares[1], shares[2], shares[3], shares[4]);
    for (std::size_t i = 0; i < 5; ++i) rep[static_cast<std::size_t>(order[i])] = shares[i];
    return rep;
}

void foundLabel(Game& g, const NewPlayer& player, const LabelChoices& choice) {
    LabelRecord& l = g.label.rec;
    int16_t city = narrow<int16_t>(findRecordByName(g, FileNo::fileCity, choice.city));
    uint8_t style = choice.style == "All Styles"
                        ? uint8_t{0}
                        : narrow<uint8_t>(findRecordByName(g, FileNo::fileStyle, choice.style));
    int32_t country = findRecordByName(g, FileNo::fileCountry, choice.country);
    l = LabelRecord{};
    l.picture = "none.jpg";
    l.name = choice.name;
    l.city = city;
    l.labelStyle = style;
    // Founded this year: the byte holds the year less 1900.
    l.founded = narrow<uint8_t>(yearOf(g.gameDate) - 1900);
    l.cashBalance = moneyUnits(1000000);
    l.reputation = newLabelReputation(g, country);
    l.id = narrow<int16_t>(g.label.recordCount());
    for (int d = 0; d < 6; ++d) setDepartmentRating(g, d);
    g.label.write(l.id);
    int16_t labelNumber = l.id;

    std::string forename = trim(player.choices.forename), surname = trim(player.choices.surname);
    std::string label = trim(choice.name);
    postNews(g,
             {.date = g.gameDate,
              .title = fmt::format("New indie label founded by {} {}", forename, surname),
              .text = fmt::format(
                  "New independent record label {} opened the doors of their {} office for the first time "
                  "today. New boss {} {} will have {} work cut out just trying to keep the label afloat in "
                  "the current climate but with hard work, perseverence and luck one day maybe {} can join "
                  "the hallowed ranks of the major labels. Only time will tell if {} is up to the challenge.",
                  label, trim(choice.city), forename, surname, personWord(3, player.choices.male), label, forename)});

    readPrefs(g);
    g.prefs->labelName = choice.name;
    g.prefs->continent = choice.continent;
    g.prefs->labelNationality = choice.country;
    g.prefs->city = choice.city;
    g.prefs->style = choice.style;
    writePrefs(g);

    g.player.playerLabel = labelNumber;
    startNewGame(g, player.staff);
}

void takeOverLabel(Game& g, const NewPlayer& player, int16_t labelNumber) {
    g.label.read(labelNumber);
    std::string forename = trim(player.choices.forename), surname = trim(player.choices.surname);
    std::string label = trim(g.label->name.value);
    std::string his = personWord(3, player.choices.male);
    postNews(g, {.date = g.gameDate,
                 .title = fmt::format("{} {} appointed as new boss of {}", forename, surname, label),
                 .text = fmt::format(
                     "Assembled journalists were left somewhat surprised when unknown {} {} was unveiled as the "
                     "new head of {} at a press conference today. Although the {} year old has no previous "
                     "experience in the industry a spokesperson for the label was quick to defend their brave "
                     "appointment, insisting that the label 'has the upmost confidence in {} abilities and the "
                     "board fully backs the appointment.' Only time will tell if their gamble will pay off.",
                     forename, surname, label, player.staff.age, his)});
    g.player.playerLabel = labelNumber;
    startNewGame(g, player.staff);
}

std::vector<ExistingLabel> existingLabels(Game& g) {
    std::vector<ExistingLabel> out;
    for (int32_t n = 1; n != g.label.recordCount(); ++n) {
        g.label.read(n);
        out.push_back({g.label->id, trim(g.label->name.value), g.label->cashBalance, g.label->reputation, {}});
    }
    for (int32_t n = 1; n != g.band.recordCount(); ++n) {
        g.band.read(n);
        int16_t label = g.band->label;
        if (label >= 1 && label <= static_cast<int32_t>(out.size()) && g.band->retired == kFalse)
            out[static_cast<std::size_t>(label - 1)].bands.push_back(trim(g.band->name.value));
    }
    return out;
}

void startNewGame(Game& g, StaffRecord player) {
    g.firstScheduleYear = 2004;
    g.lastScheduleYear = 2004;

    g.chartrecs.rec = ChartRecords{};
    for (int32_t n = 1; n <= 10; ++n) g.chartrecs.write(n);

    g.label.read(g.player.playerLabel);
    g.player.playerLabelCash = g.label->cashBalance;
    g.player.playerLabelName = g.label->name;
    g.player.playerStaff = player.id;
    g.player.dateBegun = g.gameDate;

    // createPlayer: the player heads the label.
    g.staff.rec = player;
    g.staff.write(player.id);
    g.label.read(g.player.playerLabel);
    g.label->boss = narrow<int16_t>(g.staff.recordCount() - 1);
    g.label.write(g.player.playerLabel);
    report(g, 5);

    addScheduleYear(g, 2004);

    for (int32_t n = 1; n != g.business.recordCount(); ++n) {
        g.business.read(n);
        setBusinessCharge(g);
        g.business.write(n);
    }
    report(g, 10);

    for (int i = 0; i < 200; ++i) {
        createBand(g);
        if (i % 20 == 19) report(g, 10 + i / 10);
    }
    for (int i = 0; i < 100; ++i) createSoloArtist(g);
    report(g, 40);

    for (int32_t n = 1; n != g.band.recordCount(); ++n) {
        g.band.read(n);
        if (g.band->label <= 0) continue;
        g.band->offerStage = 1;
        g.band.write(n);
        setUpSignedContract(g);
        seedAlbumPlan(g);
        setUpBandReputation(g);
        g.band.write(n);
        setUpBandDiscs(g);
        g.band.write(n);
    }
    report(g, 55);

    g.eventRollsPerDay = toByte(g.artist.recordCount() / 200.0);

    for (int32_t n = 1; n != g.artist.recordCount(); ++n) {
        g.artist.read(n);
        g.look.readIfPresent(g.artist->look);
        g.artist->imageRating = rateLook(g);
        g.artist->birthDate = randomBirthDate(g, g.artist->age);
        g.artist->energy = 100;
        g.artist->morale = 100;
        g.artist.write(n);
    }
    report(g, 65);

    for (int32_t n = 1; n != g.staff.recordCount(); ++n) {
        g.staff.read(n);
        setStaffWage(g);
        g.staff->contractEnd = yearsLater(g.gameDate, g.rng.between(1, 3));
        g.staff.write(n);
    }
    for (int32_t n = 1; n != g.label.recordCount(); ++n) {
        g.label.read(n);
        countLabelBands(g);
        setRivalStrength(g);
        setInitialHype(g);
        // The heads' wages were set again above: the departments follow them.
        for (int d = 0; d < 6; ++d) setDepartmentRating(g, d);
        updateWageBill(g);
        g.label.write(n);
    }
    report(g, 75);

    for (int32_t n = 1; n != g.disc.recordCount(); ++n) {
        g.disc.read(n);
        setUpReleasedDisc(g);
        g.disc.write(n);
    }
    seedCharts(g);
    unlockHiddenBand(g);
    // The birthdays left in the first year; 31 December files each year after.
    addBirthdays(g, yearOf(g.gameDate), g.gameDate);
    briefNewPlayerOnAlbums(g);
    report(g, 85);

    int year = yearOf(g.gameDate);
    scheduleCeremonies(g, year);
    scheduleCeremonies(g, year + 1);
    scheduleFestivals(g, year);
    scheduleFestivals(g, year + 1);
    report(g, 95);

    // The game counter rises for every game, saved or not.
    readPrefs(g);
    g.prefs->gameNumber = narrow<int32_t>(static_cast<int64_t>(g.prefs->gameNumber) + 1);
    writePrefs(g);
    g.player.gameNumber = g.prefs->gameNumber;

    g.staff.read(g.player.playerStaff);
    g.staff->employer = g.player.playerLabel;
    g.staff.write(g.player.playerStaff);
    writeOpeningLedgerRows(g);
    g.label.read(g.player.playerLabel);
    g.player.playerLabelCash = g.label->cashBalance;
    g.previousScreen = Screen::none;
    g.currentScreen = Screen::frmNews;
    noteActiveActs(g);
    report(g, 100);
}

}  // namespace trovane
