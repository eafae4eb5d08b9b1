#pragma once
// What "Artist Details" shows of one artist, gathered once for the screen and
// the headless verb alike.
#include <cstdint>
#include <string>
#include <vector>

#include "talent/band_details.h"

namespace trovane {

class Game;

struct ArtistDetails {
    int16_t id;
    std::string name;  // forename 'nickname' surname, the nickname only when set
    std::string born;  // the birth date, or "Unknown"
    int age;
    std::string job;  // the title for the artist's sex
    std::string nationality;
    std::string band;  // "" without one
    int16_t bandId;
    bool retired;
    double retirementDate;              // 0 when none was set
    std::vector<std::string> feelings;  // lstFeelings
    bool players;                       // of the player's label: look and image rating are shown
    std::string look;
    int imageRating;
    std::vector<FigureLine> attributes;  // the player's artists only
    std::vector<AchievementLine> achievements;
};

// The shown name: forename + " '" + nickname + "' " + surname, or forename + " " + surname.
std::string artistShownName(const std::string& forename, const std::string& nickname, const std::string& surname);

// A birth date on or before 1 January 1900 is "Unknown"; else "d/m/yyyy".
std::string birthDateText(double birthDate);

// The title of a job for an artist of the given sex: a woman's title when the
// job has one.
std::string jobTitleFor(Game& g, int job, bool male);

ArtistDetails artistDetails(Game& g, int16_t artist);

}  // namespace trovane
