#include "label/scouting_text.h"

#include <algorithm>

#include "floor/grammar.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

struct Words {
    std::string they, are, have, do_, act, them, s, their;
};

Words wordsOf(Game& g) {
    return {grammarWord(g, 1, false), grammarWord(g, 0, false), grammarWord(g, 7, false), grammarWord(g, 8, false),
            grammarWord(g, 9, false), grammarWord(g, 4, false), grammarWord(g, 2, false), grammarWord(g, 5, false)};
}

std::string verdict(const Words& w, int p, int f) {
    if (p <= 40) {
        std::string first = w.they + " " + w.do_ + " not have the ability to make a serious impact on the charts";
        if (f <= 40) return first + " either now or in the future.";
        if (f <= 70) return first + " the potential to become a charting " + w.act + " in the future.";
        if (f <= 85)
            return first + " a great deal of potential and with hard work and good management could become a major " +
                   w.act + " in the future.";
        return first + " an enormous amount of potential, the department are unanimous in their belief that " + w.they +
               " " + w.are + " destined for stardom.";
    }
    if (p <= 70) {
        std::string first =
            w.they + " " + w.have + " the ability to be at least a moderately successful " + w.act + " now ";
        if (f <= 40)
            return first + " it is unlikely to stay this way for long. Your department feel that " + w.they + " " +
                   w.are + " on " + w.their + " way out.";
        if (f <= 70)
            return first + " and although " + w.they + " " + w.are +
                   " unlikely to make a massive impact on the industry with the right management they believe " +
                   w.they + " could be a successful " + w.act + " for a number of years.";
        return first + " this is only going to increase with time. Your department believe that this is an " + w.act +
               " set for the big time.";
    }
    if (p <= 90) {
        std::string first = w.they + " " + w.have + " the talent to achieve major success ";
        if (f <= 40)
            return first + " in the short term, however it is also believed that " + w.they + " " + w.are +
                   " likely to fade to obscurity not long after.";
        if (f <= 70)
            return first + " in the short term, after that your department predicts that although " + w.they + " " +
                   w.are + " likely to have a successful career " + w.they + " will not be a major " + w.act +
                   " for long.";
        if (f <= 90) return first + " both now and in the future.";
        return first + " immediately. They also believe " + w.they + " " + w.are +
               " destined for bigger and better things in the future.";
    }
    std::string first = w.they + " " + w.are + " currently amongst the most talented " + w.act + "s in the world. ";
    if (f <= 70)
        return first + " However they think that " + w.they + " " + w.are +
               " unlikely to stay in this position for long. It is the opinion of the department that in a couple of "
               "years " +
               w.they + " will slip into mediocrity.";
    return first + " They add in their report that they see no reason for this to change in the near future.";
}

}  // namespace

std::string imageVerdict(Game& g) {
    const ArtistRecord& a = g.artist.rec;
    const std::string name = trim(a.forename.value) + " " + trim(a.surname.value);
    const bool male = a.male != 0;
    std::string text;
    if (a.imageRating <= 50)
        text = "whilst they do not feel " + name + "'s image is doing " + (male ? "him" : "her") +
               " any favours they fail to see how any improvements can be made.";
    else if (a.imageRating <= 80)
        text =
            "although their image may not get them on a lot of magazine covers there is no urgency to change it, "
            "they also indicate they feel rather than an improvement any alteration at this stage is likely to be "
            "detramental to " +
            name + "'s image.";
    else
        text = "they are very pleased with " + name +
               "'s image and see no reason to change it at this stage in the artist's career.";
    return text;
}

std::string memberImageLine(Game& g) {
    const ArtistRecord& a = g.artist.rec;
    return "- " + trim(a.forename.value) + " " + trim(a.surname.value) + ": " + imageVerdict(g);
}

std::string scoutingReportText(Game& g, int present, int future) {
    const BandRecord band = g.band.rec;
    const Words w = wordsOf(g);
    std::string text = "Your Artist and Repertoire Department have been monitoring " + trim(band.name.value) +
                       " for the last week and have compiled a comprehensive report on " + w.them +
                       ". They feel that " + verdict(w, present, future);
    g.style.read(band.style);
    if (g.style->abilityWeight >= 70) return text;
    text += "\r\n\r\nGiven the style of music " + w.they + " produce" + w.s +
            " the department felt it was also important to ensure " + w.they + " " + w.have +
            " the correct image. They passed their research over to the Marketing Department to see what they "
            "thought, Marketing report that they \r\n\r\n";
    for (int i = 0; i < std::min<int>(band.memberCount, 10); ++i) {
        const int16_t who = band.members[static_cast<std::size_t>(i)];
        if (who < 1) continue;
        g.artist.read(who);
        text += memberImageLine(g) + "\r\n";
    }
    return text;
}

}  // namespace trovane
