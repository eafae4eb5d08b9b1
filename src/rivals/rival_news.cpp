#include "rivals/rival_news.h"

#include "floor/formats.h"
#include "floor/grammar.h"
#include "floor/news_post.h"
#include "rivals/rival_common.h"
#include "talent/band_functions.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr std::array<const char*, 5> kPlaces = {" : United Kingdom", " : North America", " : Europe", " : Oceania",
                                                " : Other Territories"};

std::string word(Game& g, int code) {
    const int16_t band = g.band->id;
    std::string w = grammarWord(g, code, false);
    g.band.read(band);
    return w;
}

}  // namespace

bool pressFollows(Game& g, bool ownActs) {
    const int16_t band = g.band->id;
    const bool follows =
        (ownActs && g.band->label == g.player.playerLabel) || playerWatches(g, band) || bandRating(g) > 90;
    g.band.read(band);
    return follows;
}

void announceStudio(Game& g) {
    if (!pressFollows(g, false)) return;
    const DiscRecord disc = g.disc.rec;
    const std::string name = trim(g.band->name.value);
    const std::string title = trim(disc.title.value);
    g.business.read(disc.studio);
    const BusinessRecord firm = g.business.rec;
    g.city.read(firm.city);
    std::string place = trim(firm.name.value) + " in " + trim(g.city->name.value);
    g.country.read(g.city->country);  // a city names its country by number
    place += ", " + trim(g.country->name.value);
    const bool album = disc.isSingle == 0;
    std::string text;
    if (album)
        text = name + " today announced that " + word(g, 1) + " " + word(g, 7) + " finalised the tracklist for " +
               word(g, 5) + " forthcoming album entitled " + title + " and will be beginning the recording stage at " +
               place + " in two weeks.";
    else
        text = name + " " + word(g, 0) + " reportedly checking into " + place +
               " in two weeks time to finalise recording for their forthcoming single " + title + ".";
    postNews(g, {.date = g.gameDate + 1,
                 .title = name + " announce" + word(g, 2) + " new " + (album ? "album" : "single") + ".",
                 .text = text});
    g.disc.read(disc.id);
    g.band.read(disc.band);
}

void announceCompletion(Game& g) {
    if (!pressFollows(g, true)) return;
    const DiscRecord disc = g.disc.rec;
    const std::string name = trim(g.band->name.value);
    const std::string type = disc.isSingle == 0 ? "album" : "single";
    std::string list;
    for (std::size_t t = 0; t < 5; ++t)
        if (disc.releaseDate[t] > kNoDate) list += "\r\n" + formatDate(disc.releaseDate[t], "d/m/yyyy") + kPlaces[t];
    const std::string text = name + " " + word(g, 7) + " reportedly completed recording " + word(g, 5) + " new " +
                             type + " " + " and " + word(g, 7) +
                             " provisionally scheduled the following release date(s) :-\r\n" + list;
    postNews(g, {.date = g.gameDate + 1,
                 .title = name + " complete" + word(g, 2) + " the recording of " + word(g, 5) + " new " + type + ".",
                 .text = text});
    g.disc.read(disc.id);
    g.band.read(disc.band);
}

}  // namespace trovane
