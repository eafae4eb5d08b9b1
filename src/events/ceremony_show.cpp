#include "events/ceremony_show.h"

#include <algorithm>
#include <set>
#include <utility>

#include "floor/grammar.h"
#include "schedule/band_calendar.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr int kToneColumn = 0;
constexpr int kSpeakerColumn = 1;
constexpr int kAwardColumn = 2;
constexpr int kCareerColumn = 3;
constexpr int kUsesColumn = 4;
constexpr uint8_t kMostUses = 255;

// Who steps up for an award, with the words that agree with it.
struct Speaker {
    std::string who;
    bool solo = true;
    bool male = true;
    int16_t band = 0;
    int16_t label = 0;
    bool isBand = false;                 // the act itself won, not one of its members
    std::vector<std::string> bandmates;  // the members named in the thank-yous

    std::string s() const { return solo ? "s" : ""; }
    std::string plural() const { return solo ? "" : "s"; }
    std::string they(bool capital = false) const {
        std::string w = solo ? personWord(0, male) : "they";
        if (capital) w[0] = static_cast<char>(w[0] - 'a' + 'A');
        return w;
    }
    std::string their() const { return solo ? personWord(3, male) : "their"; }
    std::string me() const { return solo ? "me" : "us"; }
    std::string i() const { return solo ? "I" : "we"; }
    std::string my() const { return solo ? "my" : "our"; }
    std::string isAre() const { return solo ? "is" : "are"; }
    std::string amAre() const { return solo ? "am" : "are"; }
    std::string wasWere() const { return solo ? "was" : "were"; }
    std::string hasHave() const { return solo ? "has" : "have"; }
};

template <class T>
const T& pick(Game& g, const std::vector<T>& v) {
    return v[static_cast<std::size_t>(g.rng.between(0, static_cast<int32_t>(v.size()) - 1))];
}

std::string joined(const std::vector<std::string>& names) {
    std::string out;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (i > 0) out += i + 1 == names.size() ? " and " : ", ";
        out += names[i];
    }
    return out;
}

std::string fullName(const ArtistRecord& a) { return trim(a.forename.value) + " " + trim(a.surname.value); }

// Fills the act's side of the speaker from the band in the buffer.
void takeBand(Game& g, Speaker& sp, int16_t except) {
    const BandRecord band = g.band.rec;
    sp.band = band.id;
    sp.label = band.label;
    int members = std::min<int>(band.memberCount, static_cast<int>(band.members.size()));
    for (int m = 0; m < members; ++m) {
        int16_t n = band.members[static_cast<std::size_t>(m)];
        if (n < 1 || n == except || !g.artist.readIfPresent(n)) continue;
        sp.bandmates.push_back(trim(g.artist->forename.value));
    }
    g.band.rec = band;
}

// The act that accepts the award's first nominee; false for a label or a
// winner the tables no longer hold.
bool findSpeaker(Game& g, const AwardRecord& a, Speaker& sp) {
    int16_t n = a.nominees[0];
    int16_t bandNo = 0;
    switch (a.kind) {
    case 0:
    case 4:
        if (!g.disc.readIfPresent(n)) return false;
        bandNo = g.disc->band;
        break;
    case 6:
        if (!g.song.readIfPresent(n)) return false;
        bandNo = g.song->band;
        break;
    case 1:
    case 5: {
        if (!g.artist.readIfPresent(n)) return false;
        const ArtistRecord artist = g.artist.rec;
        sp.who = fullName(artist);
        sp.male = artist.male != 0;
        sp.solo = true;
        if (artist.band > 0 && g.band.readIfPresent(artist.band)) takeBand(g, sp, artist.id);
        return true;
    }
    case 2: bandNo = n; break;
    default: return false;
    }
    if (!g.band.readIfPresent(bandNo)) return false;
    sp.who = trim(g.band->name.value);
    sp.isBand = true;
    sp.solo = g.band->memberCount < 2;
    if (sp.solo && g.band->memberCount == 1 && g.artist.readIfPresent(g.band->members[0]))
        sp.male = g.artist->male != 0;
    // A solo act does not thank itself.
    takeBand(g, sp, sp.solo ? g.band->members[0] : 0);
    return true;
}

int awardClassOf(int kind) {
    if (kind == 0 || kind == 4) return 1;
    if (kind == 6) return 3;
    return 2;
}

// Why the act is not in the hall: 0 it is, 1 it couldn't make it, 2 it is
// recording, 3 it is on tour.
int absence(Game& g, const Speaker& sp, double night) {
    if (sp.band < 1 || !g.band.readIfPresent(sp.band)) return 0;
    int32_t entry = bandEngagement(g, 1, night);
    if (entry < 1 || !g.schedule.readIfPresent(entry)) return 0;
    switch (g.schedule->type) {
    case 7: return 2;
    case 8:
    case 10:
    case 11: return 3;
    default: return 1;
    }
}

std::string entrance(Game& g, const Speaker& sp) {
    const std::string& w = sp.who;
    switch (g.rng.between(1, 4)) {
    case 1:
        return "Following the announcement " + w + " get" + sp.s() + " up from " + sp.their() + " seat" + sp.plural() +
               " and make" + sp.s() + " " + sp.their() + " way down the aisle and onto the stage...";
    case 2:
        return "Upon hearing " + sp.they() + " won " + w + " make" + sp.s() + " " + sp.their() +
               " way up to the stage for " + sp.their() + " acceptance speech...";
    case 3: return w + " arrive" + sp.s() + " at the podium to deliver " + sp.their() + " speech...";
    default:
        return w + " climb" + sp.s() + " the steps to the stage, walk" + sp.s() + " over to the podium and accept" +
               sp.s() + " the award...";
    }
}

// The opening words of a normal speech, ending where the thank-yous begin.
std::string normalOpening(Game& g, const Speaker& sp, const std::string& award, const std::string& city) {
    const std::vector<std::string> greetings = {
        "'This isn't really " + sp.my() + " kind of thing so " + sp.i() + "'ll keep it short. ",
        "'Hello to everyone! ",
        "'Let me start by saying, " + sp.i() + " love winning awards! Thank you so much for helping " + sp.me() +
            " add to " + sp.my() + " collection. ",
        "'This is a fantastic honour and " + sp.i() + " " + sp.amAre() + " honoured to be this year's winner" + ". ",
        "'Whoo! Good evening " + city + "! ",
    };
    const std::vector<std::string> thanks = {
        "Basically " + sp.i() + " just want to say thanks for this award, i'm sure " + sp.i() +
            "'ll find a place on the mantlepiece for it.",
        "This award means a lot to " + sp.me() + " so " + sp.i() +
            " want to take this opportunity to say thanks to a few people who have helped make it possible.",
        "Thanks very much for this " + award + " award.",
        "Thank you so much for this fantastic award.",
        "To start with I just want to say what a huge honour it is to win such a presitgious award, thank you so "
        "much.",
        "Wow, what a night, thank you so much for this amazing award.",
    };
    const std::vector<std::string> openers = {
        " A big thank you...",
        " It wouldn't be right for " + sp.me() + " to accept this award without saying a huge thank you...",
        " Right, there are a few people who have helped make this possible, thank you...",
        " The credit for this award has to be shared with a few people, a huge thank you...",
    };
    // One draw after another, so a game repeats exactly.
    std::string line = pick(g, greetings);
    line += pick(g, thanks);
    line += pick(g, openers);
    return line;
}

// Our own line of thanks: the label, its boss and the act's members.
std::string namingLine(Game& g, const Speaker& sp) {
    std::vector<std::string> parts;
    if (sp.label > 0 && g.label.readIfPresent(sp.label)) {
        parts.push_back("everyone at " + trim(g.label->name.value));
        int16_t boss = g.label->boss;
        if (boss > 0 && g.staff.readIfPresent(boss))
            parts.push_back(sp.my() + " manager " + trim(g.staff->forename.value) + " " + trim(g.staff->surname.value));
    }
    if (!sp.bandmates.empty())
        parts.push_back((sp.isBand ? "the band, " : sp.my() + " bandmates ") + joined(sp.bandmates));
    if (parts.empty()) return {};
    return "And thanks to " + joined(parts) + ".'";
}

// The thank-yous of a normal speech (also the message of an absent act):
// the lines, then ours. Returns how many lines of the table were said.
int thankYous(Game& g, const Speaker& sp, int awardClass, bool wonBefore, std::vector<std::string>& out) {
    ThankWanted want{.tone = g.rng.between(0, 2), .solo = sp.solo, .awardClass = awardClass, .wonBefore = wonBefore};
    std::vector<std::string> lines = drawThankLines(g, want, g.rng.between(1, 4));
    for (std::string& l : lines) out.push_back(std::move(l));
    std::string ours = namingLine(g, sp);
    if (!ours.empty()) {
        out.push_back(std::move(ours));
    } else if (!out.empty()) {
        out.back() += "'";
    }
    return static_cast<int>(lines.size());
}

void closeByCount(const Speaker& sp, int said, std::vector<std::string>& out) {
    if (said <= 1) {
        out.push_back("After that short but sweet acceptance speech " + sp.who + " return" + sp.s() + " to " +
                      sp.their() + " seat" + sp.plural() + ".");
    } else if (said <= 3) {
        out.push_back("With the thank-yous over with " + sp.who + " leave" + sp.s() + " the stage and rejoin" + sp.s() +
                      " the audience.");
    } else {
        out.push_back("Just when you thought " + sp.they() + " would never stop thanking people " + sp.who + " pick" +
                      sp.s() + " up " + sp.their() + " award and leave" + sp.s() + " the stage.");
    }
}

// One line of the speech's own tone, when the table has one.
void toneLine(Game& g, const Speaker& sp, int tone, int awardClass, bool wonBefore, std::vector<std::string>& out) {
    ThankWanted want{.tone = tone, .solo = sp.solo, .awardClass = awardClass, .wonBefore = wonBefore};
    for (std::string& l : drawThankLines(g, want, 1)) out.push_back(std::move(l));
}

struct Night {
    std::string ceremony;
    std::string city;
    double date = 0;
};

void speech(Game& g, const AwardRecord& a, const Speaker& sp, bool wonBefore, const Night& night,
            std::vector<std::string>& out) {
    const std::string award = trim(a.name.value);
    const int cls = awardClassOf(a.kind);
    const std::string& w = sp.who;
    if (int away = absence(g, sp, night.date); away > 0) {
        if (away == 2)
            out.push_back(w + " " + sp.isAre() + " in the studio recording at the moment, but " + sp.they() +
                          " found time to record this special message...");
        else if (away == 3)
            out.push_back(w + " " + sp.isAre() + " currently touring so couldn't be here tonight, however " +
                          sp.they() + " did record this message...");
        else
            out.push_back("Unfortunately " + w + " couldn't make it tonight, however " + sp.they() +
                          " recorded this message for us...");
        out.push_back(normalOpening(g, sp, award, night.city));
        int said = thankYous(g, sp, cls, wonBefore, out);
        if (said >= 3)
            out.push_back("With that lengthy acceptance speech over with " + w + "'s face" + sp.plural() +
                          " disappear" + sp.s() + " from the screen and the ceremony continues.");
        else
            out.push_back("With the thank-yous over with the image on the huge screen is replaced by the " +
                          night.ceremony + " logo and the ceremony continues.");
        return;
    }
    out.push_back(entrance(g, sp));
    bool hasRival = a.nomineeCount > 1;
    switch (speechKindOf(g.rng.between(1, 100), hasRival)) {
    case SpeechKind::drunk:
        out.push_back(w + " stagger" + sp.s() + " up to the stage, " + sp.they() + " " + sp.hasHave() +
                      " clearly been taking advantage of the free champagne, " + "this" + " should beinteresting...");
        out.push_back(w + " slumps over the podium, 'Thanksh very muchh for this award, " + sp.i() +
                      " just want to say... " + sp.i() + " love you all!" + " And " + sp.i() +
                      " espeshially love you!'");
        toneLine(g, sp, 3, cls, wonBefore, out);
        out.push_back("Following " + sp.their() + " speech, a decidedly loved up " + w + " return" + sp.s() + " to " +
                      sp.their() + " seat" + sp.plural() + " decidedly less dignified than " + sp.they() + " " +
                      sp.wasWere() + " 5 minutes ago.");
        return;
    case SpeechKind::angry:
        out.push_back(w + " walk" + sp.s() + " down the aisle and up the steps to the podium...");
        out.push_back(w + " picks up the microphone. 'Yeah, right ok, well basically " + sp.i() +
                      " just want to say you can go and fu**ing shove this award, " + sp.i() +
                      " don't care what you industry suits think about " + sp.my() +
                      " music. If it isn't voted for by the fans, " + sp.i() + " don't want anything to do with it.'");
        toneLine(g, sp, 5, cls, wonBefore, out);
        out.push_back("Scathing remarks there from " + w + ", who " + sp.isAre() +
                      " clearly upset with the industry. " + sp.they(true) + " return" + sp.s() + " to " + sp.their() +
                      " seat" + sp.plural() + " leaving the award discarded on the stage.");
        return;
    case SpeechKind::boastful: {
        std::string rival = trim(a.nomineeNames[static_cast<std::size_t>(g.rng.between(1, a.nomineeCount - 1))].value);
        out.push_back(w + " step" + sp.s() + " up to the podium...");
        out.push_back("'Well, thanks for the award and all', remarks " + w +
                      " 'but really, I mean it's hardly suprising " + sp.i() + " won when " + sp.i() + " " +
                      sp.wasWere() + " up against the likes of " + rival + " is it?'");
        toneLine(g, sp, 4, cls, wonBefore, out);
        out.push_back(sp.they(true) + " " + sp.isAre() +
                      " clearly not impressed by the opposition there, as members of the audience look on in slight "
                      "bemusement as " +
                      sp.they() + " leave" + sp.s() + " the stage.");
        return;
    }
    case SpeechKind::arrogant:
        out.push_back(w + " arrive" + sp.s() + " on stage, accept" + sp.s() + " the award and then stoop" + sp.s() +
                      " to the mic for " + sp.their() + " acceptance speech, it looks like " + w +
                      " has a few words for us...");
        out.push_back("'Thank you for this award, though having said that, I don't think anyone can say " + sp.i() +
                      " don't deserve it, " + sp.i() + " " + sp.amAre() + " simply the best there is.'");
        toneLine(g, sp, 4, cls, wonBefore, out);
        closeByCount(sp, 1, out);
        return;
    case SpeechKind::normal: break;
    }
    out.push_back(normalOpening(g, sp, award, night.city));
    closeByCount(sp, thankYous(g, sp, cls, wonBefore, out), out);
}

// The bands with a winner's row from an earlier night.
std::set<int16_t> earlierWinners(Game& g) {
    std::set<int16_t> out;
    for (int32_t n = 1; n < g.achieve.recordCount(); ++n) {
        g.achieve.read(n);
        if (g.achieve->kind == 0 && trim(g.achieve->text.value).starts_with("Winner of ")) out.insert(g.achieve->who);
    }
    return out;
}

}  // namespace

SpeechKind speechKindOf(int roll, bool hasRival) {
    if (roll <= 60) return SpeechKind::normal;
    if (roll <= 70) return SpeechKind::drunk;
    if (roll <= 80) return SpeechKind::angry;
    if (roll <= 90) return hasRival ? SpeechKind::boastful : SpeechKind::normal;
    return SpeechKind::arrogant;
}

std::vector<std::string> drawThankLines(Game& g, const ThankWanted& want, int count) {
    std::vector<std::string> out;
    std::vector<int32_t> said;
    const int speaker = want.solo ? 1 : 2;
    const int career = want.wonBefore ? 2 : 1;
    for (int k = 0; k < count; ++k) {
        std::vector<int32_t> best;
        int fewest = kMostUses + 1;
        for (int32_t n = 1; n < g.thank.recordCount(); ++n) {
            if (std::find(said.begin(), said.end(), n) != said.end()) continue;
            g.thank.read(n);
            const auto& c = g.thank->conditions;
            bool toneFits =
                want.tone > 2 ? c[kToneColumn] == want.tone : (c[kToneColumn] == 0 || c[kToneColumn] == want.tone);
            if (!toneFits || trim(g.thank->text.value).empty()) continue;
            if (c[kSpeakerColumn] != 0 && c[kSpeakerColumn] != speaker) continue;
            if (c[kAwardColumn] != 0 && c[kAwardColumn] != want.awardClass) continue;
            if (c[kCareerColumn] != 0 && c[kCareerColumn] != career) continue;
            int uses = c[kUsesColumn];
            if (uses < fewest) {
                fewest = uses;
                best.clear();
            }
            if (uses == fewest) best.push_back(n);
        }
        if (best.empty()) break;
        int32_t chosen = pick(g, best);
        g.thank.read(chosen);
        out.push_back(trim(g.thank->text.value));
        auto& uses = g.thank->conditions[kUsesColumn];
        if (uses < kMostUses) ++uses;
        g.thank.write(chosen);
        said.push_back(chosen);
    }
    return out;
}

ShowSteps buildCeremonyShow(Game& g, int16_t ceremony, double date) {
    ShowSteps steps;
    if (!g.ceremony.readIfPresent(ceremony)) return steps;
    const CeremonyRecord c = g.ceremony.rec;
    const ScheduleRecord entry = g.schedule.rec;
    Night night{.ceremony = trim(c.name.value), .date = date};
    if (g.country.readIfPresent(c.country)) night.city = trim(g.country->name.value);
    steps.push_back({"Good evening and welcome to the " + std::to_string(yearOf(night.date)) + " " + night.ceremony +
                     " right here in " + night.city + ". Without further ado, let's get on with the awards..."});

    std::vector<int16_t> slots;
    for (int16_t a : c.awards)
        if (a > 0) slots.push_back(a);
    std::set<int16_t> winners = earlierWinners(g);
    for (std::size_t i = 0; i < slots.size(); ++i) {
        if (!g.award.readIfPresent(slots[i])) continue;
        const AwardRecord a = g.award.rec;
        const std::string name = trim(a.name.value);
        if (a.nomineeCount == 0) {
            steps.push_back({"Well, the award we normally give out at this point is the " + name +
                             " however the organisers have decided not to award that accolade this year so let's "
                             "move on..."});
            continue;
        }
        std::string intro = i == 0                  ? "The first award of the evening is the "
                            : i + 1 == slots.size() ? "Our final award tonight is the "
                                                    : "Our next award is the ";
        std::vector<std::string> lines{intro + name + " award. And the nominees are..."};
        int count = std::min<int>(a.nomineeCount, static_cast<int>(a.nominees.size()));
        for (int k = 0; k < count; ++k) lines.push_back("- " + trim(a.nomineeNames[static_cast<std::size_t>(k)].value));
        lines.push_back("And the winner is...");
        steps.push_back(std::move(lines));

        std::vector<std::string> won{trim(a.nomineeNames[0].value)};
        Speaker sp;
        if (findSpeaker(g, a, sp)) {
            bool before = sp.band > 0 && winners.contains(sp.band);
            speech(g, a, sp, before, night, won);
            if (sp.band > 0) winners.insert(sp.band);
        }
        steps.push_back(std::move(won));
    }
    g.ceremony.rec = c;
    g.schedule.rec = entry;
    return steps;
}

}  // namespace trovane
