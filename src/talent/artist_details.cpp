#include "talent/artist_details.h"

#include "browse/achievement_browse.h"
#include "floor/formats.h"
#include "talent/band_condition.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

std::string artistShownName(const std::string& forename, const std::string& nickname, const std::string& surname) {
    const std::string nick = trim(nickname);
    if (nick.empty()) return trim(trim(forename) + " " + trim(surname));
    return trim(forename) + " '" + nick + "' " + trim(surname);
}

std::string birthDateText(double birthDate) {
    if (birthDate <= serialFromCivil(1900, 1, 1)) return "Unknown";
    return formatDate(birthDate, "d/m/yyyy");
}

std::string jobTitleFor(Game& g, int job, bool male) {
    if (job < 1 || job >= g.job.recordCount()) return "";
    g.job.read(job);
    const std::string female = trim(g.job->titleFemale.value);
    return male || female.empty() ? trim(g.job->title.value) : female;
}

ArtistDetails artistDetails(Game& g, int16_t artist) {
    g.artist.read(artist);
    const ArtistRecord a = g.artist.rec;
    ArtistDetails d{};
    d.id = artist;
    d.name = artistShownName(a.forename.value, a.nickname.value, a.surname.value);
    d.born = birthDateText(a.birthDate);
    d.age = a.age;
    d.job = jobTitleFor(g, a.job, a.male != kFalse);
    if (a.country > 0 && a.country < g.country.recordCount()) {
        g.country.read(a.country);
        d.nationality = trim(g.country->name.value);
    }
    d.bandId = a.band;
    int16_t label = 0;
    if (a.band > 0 && a.band < g.band.recordCount()) {
        g.band.read(a.band);
        d.band = trim(g.band->name.value);
        label = g.band->label;
    }
    d.retired = a.retired != kFalse;
    d.retirementDate = a.retirementDate > 2 ? a.retirementDate : 0;
    d.players = !d.retired && g.player.playerLabel > 0 && label == g.player.playerLabel;
    g.artist.read(artist);
    d.feelings = artistFeelings(g);
    if (d.players) {
        if (a.look > 0 && a.look < g.look.recordCount()) {
            g.look.read(a.look);
            d.look = trim(g.look->name.value);
        }
        d.imageRating = a.imageRating;
        d.attributes = {{"Ability", std::to_string(a.ability)},
                        {"Charisma", std::to_string(a.charisma)},
                        {"Controversy", std::to_string(a.controversy)},
                        {"Flair", std::to_string(a.flair)},
                        {"Dancing", std::to_string(a.dancing)},
                        {"Live", std::to_string(a.live)},
                        {"Visual", std::to_string(a.visual)},
                        {"Attitude", std::to_string(a.attitude)},
                        {"Angst", std::to_string(a.angst)},
                        {"Energy", std::to_string(a.energy)},
                        {"Morale", std::to_string(a.morale)}};
    }
    for (const AchievementRow& r : achievementsOf(g, 1, artist)) d.achievements.push_back({r.date, r.text});
    g.artist.read(artist);
    return d;
}

}  // namespace trovane
